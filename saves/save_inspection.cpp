#include "saves/save_inspection.h"

#include "saves/save_format.h"
#include "saves/system_panel.h"
#include "ui/errors.h"

Inspection InspectSave(std::span<const std::uint8_t> file) {
    using enum Inspection::Finding;
    if (file.size() > MostSaveBytes) return {.Found = TooLong, .Name = ""};
    GameState start;
    BuildSectors(start.Sectors);
    try {
        const std::string name = NameInSave(file);
        DecodeSave(file, name, start);
        return {.Found = CanNameSave(name) ? Sound : NameRefused, .Name = name};
    } catch (const ui::GameError&) {
        return {.Found = Damaged, .Name = ""};
    }
}
