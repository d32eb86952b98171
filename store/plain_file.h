// Plain files. What has the name of one and is none, such as a pipe or a device, might block, never
// end or belong to somebody else: it is neither read nor written nor removed.
#pragma once

#include <string>
#include <vector>

// Whether the name leads to a plain file.
bool isPlainFile(const char* name);

// Replaces what the file holds; it is made with mode 0664 if it is missing. Stops at the first
// error, silently, with what has been written so far.
void writePlainFile(const char* name, const std::vector<std::string>& pieces);

// Removes the file if there is one.
void removePlainFile(const char* name);
