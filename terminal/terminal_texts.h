// The long texts of the ship terminal.
#pragma once

#include <span>
#include <string>
#include <string_view>

// What a terminal shows when it is started; it names the serial number.
std::string Banner(std::string_view serialNumber);

// By the key that is typed after the number sign, from 1.
std::span<const std::string_view> ArchiveFolders();
