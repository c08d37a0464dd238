#include "saves/save_files.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "core/carrying.h"
#include "core/room_view.h"
#include "core/shut_down.h"
#include "core/stages.h"
#include "saves/durable_file.h"
#include "saves/save_format.h"
#include "text/characters.h"
#include "text/windows1250.h"
#include "ui/errors.h"

namespace fs = std::filesystem;

namespace {

fs::path SavesFolder(const Game& game) {
    return game.state.AppPath / "data" / "saves";
}

// The list has always gone by the last three characters alone, so it shows "HraTVX" as well, whose missing dot RefuseMissingDot tells.
bool IsListed(std::string_view fileName) {
    return text::UpperAscii(text::LastChars(fileName, 3)) == "TVX" && text::CharCount(fileName) >= SaveExtension.size();
}

bool HasExtension(std::string_view fileName) {
    return text::UpperAscii(text::LastChars(fileName, SaveExtension.size())) == SaveExtension;
}

std::string_view SaveName(std::string_view fileName) {
    return fileName.substr(0, fileName.size() - text::LastChars(fileName, SaveExtension.size()).size());
}

// Finds "Game1.tvx" too, which a system whose file names have no case may have made of the name.
std::string FileName(const fs::path& folder, std::string_view name) {
    const std::string exact = std::string(name).append(SaveExtension);
    const auto files = FilesIn(folder);
    if (std::ranges::find(files, exact) != files.end()) return exact;
    const auto other = std::ranges::find_if(files, [&](std::string_view file) {
        return file.starts_with(name) && text::UpperAscii(file.substr(name.size())) == SaveExtension;
    });
    return other == files.end() ? exact : *other;
}

void RefusePath(std::string_view name) {
    using namespace std::string_view_literals;
    if (name.find_first_of("/\\\0"sv) != std::string_view::npos) {
        throw ui::GameError("Název pozice nesmí obsahovat lomítko ani nulový znak. Zvol prosím jiný.");
    }
}

// For a name that no file "NAME.TVX" has.
void RefuseMissingDot(const fs::path& folder, std::string_view name) {
    for (const std::string& file : FilesIn(folder)) {
        if (!IsListed(file) || SaveName(file) != name) continue;
        throw ui::GameError("Soubor " + file + " nejde nahrát, protože mu chybí tečka před příponou. Přejmenuj ho prosím.");
    }
}

std::string_view Reason(int error) {
    switch (error) {
        case ENOSPC:
        case EDQUOT:
        case EFBIG: return "Na disku není dost místa.";
        case EACCES:
        case EPERM:
        case EROFS: return "Složka data/saves je jen pro čtení nebo k ní chybí oprávnění.";
        case ENOENT:
        case ENOTDIR:
        case EEXIST: return "Složka data/saves chybí nebo místo ní leží soubor.";
        case ENAMETOOLONG: return "Název je příliš dlouhý. Zvol prosím kratší.";
        case EINVAL:
        case EILSEQ:
        case EISDIR: return "Soubor s takovým názvem tu být nemůže. Zvol prosím jiný.";
        default: return "Disk hlásí chybu.";
    }
}

std::string Explain(std::string_view what, const std::system_error& error) {
    return std::string(what).append(" ").append(Reason(error.code().value()));
}

// What a saved game holds of the state; two states with the same contents are the same game, whatever the names of their files.
Bytes Contents(const GameState& state) {
    return EncodeSave(state, "", {.Name = 0, .DoorCode = 0});
}

GameState FirstState() {
    GameState state;
    BuildSectors(state.Sectors);
    StandIn(state, sector::Cabin);
    return state;
}

bool Holds(const fs::path& file, const Bytes& contents, const GameState& current) {
    try {
        const Bytes save = ReadFile(file, "", MostSaveBytes);
        const auto held = DecodeSave(save, NameInSave(save), current);
        return held && Contents(*held) == contents;
    } catch (const ui::GameError&) {
        return false;
    }
}

std::int16_t DrawKey(const Game& game) {
    return static_cast<std::int16_t>(Draw(game, 100));
}

}  // namespace

std::vector<std::string> SaveNames(const Game& game) {
    std::vector<std::string> names;
    try {
        MakeFolder(SavesFolder(game));
        for (const std::string& file : FilesIn(SavesFolder(game))) {
            // The panel refuses "?", so a file with a foreign character in its name is listed but never loaded or overwritten.
            if (IsListed(file)) names.push_back(text::ReplaceForeignCharacters(SaveName(file)));
        }
    } catch (const std::system_error& error) {
        throw ui::GameError(Explain("Uložené pozice se nepodařilo vypsat.", error));
    }
    return names;
}

void SaveGame(Game& game, std::string_view name) {
    RefusePath(name);
    const std::int16_t nameKey = DrawKey(game);
    const std::int16_t doorCodeKey = DrawKey(game);
    const Bytes file = EncodeSave(game.state, name, {.Name = nameKey, .DoorCode = doorCodeKey});
    try {
        const fs::path folder = SavesFolder(game);
        MakeFolder(folder);
        ReplaceFile(folder / FileName(folder, name), file);
    } catch (const std::system_error& error) {
        throw ui::GameError(Explain("Pozici se nepodařilo uložit.", error));
    }
}

bool HasUnsavedSteps(const Game& game) {
    if (game.state.GameStage != GameStage::Running || game.state.GameOver == True) return false;
    const Bytes contents = Contents(game.state);
    if (contents == Contents(FirstState())) return false;
    try {
        const fs::path folder = SavesFolder(game);
        const auto files = FilesIn(folder);
        return !std::ranges::any_of(
            files, [&](const std::string& file) { return HasExtension(file) && Holds(folder / file, contents, game.state); });
    } catch (const std::system_error&) {
        return true;
    }
}

void LoadGame(Game& game, std::string_view name) {
    RefusePath(name);
    const std::string unreadable = "Uloženou pozici se nepodařilo přečíst.";
    Bytes file;
    try {
        const fs::path folder = SavesFolder(game);
        const fs::path path = folder / FileName(folder, name);
        if (!fs::exists(path)) RefuseMissingDot(folder, name);
        file = ReadFile(path, unreadable, MostSaveBytes);
    } catch (const std::system_error& error) {
        throw ui::GameError(Explain(unreadable, error));
    }
    auto loaded = DecodeSave(file, name, game.state);
    if (!loaded) {
        game.desktop.ShowMessageBox(LoadError, ui::ErrorTitle);
        UnloadForm1(game);
    }
    game.state = std::move(*loaded);
    RefreshInventoryList(game);
    DescribeSector(game, game.state.CurrentSector, Output::Replace);
}
