// The long texts of the ship terminal.
#pragma once

#include <span>
#include <string>
#include <string_view>

// What a terminal shows when it is started; it names the serial number.
std::string Banner(std::string_view serialNumber);

// The folders of the archive in the order of their numbers, which begin with 1 and are typed after the number sign.
std::span<const std::string_view> ArchiveFolders();
