// What the numbers in GameState mean that are no Booleans; story_flags.def says which flag holds which.
#pragma once

#include <cstdint>

namespace GameStage {
enum : std::int16_t { Title, Introduction, Running };
}

// Of the message about the replicator and of the one about the old door, which can be read at every terminal.
namespace MessageState {
enum : std::int16_t { None, Waiting, Read };
}

namespace ReplicatorStage {
enum : std::int16_t { Broken, Examined, Opened, CoilFitted, Repaired };
}

namespace HangarTerminalStage {
enum : std::int16_t { Broken, Opened, DispenserFitted, Repaired };
}

namespace BrokenTerminalStage {
enum : std::int16_t { Untouched, Opened, DispenserFound, Closed };
}

namespace DarkGlassesStage {
enum : std::int16_t { Absent, InDiningHall, Gone, Met };
}

namespace CalledAwayStage {
enum : std::int16_t { Inside, Called, Gone };
}

namespace OldDoorStage {
enum : std::int16_t { Untouched, Examined, Repaired, ExaminedAgain, Reported };
}

namespace ContainerStage {
enum : std::int16_t { Hidden, Found, AgentSent, AgentTold };
}

namespace CaptainAlertStage {
enum : std::int16_t { Calm, Alerted, OnTheBridge, DisketteFound, Returned };
}

namespace ComputerStage {
enum : std::int16_t { Untouched, DriveMissing, DriveHandedOver, DriveFitted, DisketteRead, OldDisketteFound };
}
