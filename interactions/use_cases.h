// What happens when one thing is used on another. DoUse calls these functions, after it has seen that the used thing is carried if it must
// be. In a stage of the story that a function does not know it answers with Refuse.
#pragma once

#include "interactions/answers.h"

void Refuse(Game& game);

// Terminals, the keypad and its door code.
void StartTerminal(Game& game, Item terminal);
void StartHangarTerminal(Game& game);
void TypeOnKeypad(Game& game);
void ConnectCable(Game& game);
void ConnectTester(Game& game);
void ReprogramKeypad(Game& game);

// Locks.
void TurnKeyInside(Game& game);
void TurnKeyOutside(Game& game);
void SwipeCard(Game& game);
void ReturnCard(Game& game);

// Repairs.
void RepairReplicator(Game& game);
void UnscrewPanel(Game& game);
void RepairHangarTerminal(Game& game);
void RepairOldDoor(Game& game);
void DismantleBrokenTerminal(Game& game);
void FitCoil(Game& game);
void FitIonDispenser(Game& game);

// Daily life, and things given to people.
void TakeShower(Game& game);
void TakeMeal(Game& game);
void GiveNewspaper(Game& game);
void ShowAuthorisation(Game& game);
void GivePlans(Game& game);
void ReturnDocuments(Game& game, Item documents, Boolean& taken);

// The computer, the samples and the end.
void ReadDiskette(Game& game);
void FitFloppyDrive(Game& game);
void ReadOldDiskette(Game& game);
void LoadSample(Game& game, Item sample, TextNumber text);
void LoadReference(Game& game);
void LoadBomb(Game& game);
void PushCartOntoTeleport(Game& game);
void FireDetonator(Game& game);
