// Writing and finding the files of one folder so that neither a crash nor a full disk can cost a file that was there before.
#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

// Of the names of drafts, files that are being written.
inline constexpr std::string_view DraftPrefix = ".saving-";

// Replaces the file as a whole; afterwards the bytes are on the disk, not only on their way there. Throws system_error. The old file is
// then as it was, unless the last step failed, which flushes the folder: the new file then stands in its place, whole, but may be lost with
// the power.
void ReplaceFile(const std::filesystem::path& file, std::span<const std::uint8_t> bytes);

// Throws system_error when the folder is not there and cannot be made.
void MakeFolder(const std::filesystem::path& folder);

// The names of the folder's files in the order of the directory; files that cannot be looked at are left out. Throws system_error when the
// folder itself cannot be read.
std::vector<std::string> FilesIn(const std::filesystem::path& folder);
