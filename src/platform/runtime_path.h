#pragma once
// Files that exist only while programs of the user run (locks, sockets).

#include <cstddef>
#include <string>
#include <string_view>

// NAME SUFFIX in the user's runtime directory, else in the temporary one with the
// user's id in the name. A runtime path longer than `maxLength` falls back to the
// temporary directory, whose short name suits sockets.
std::string RuntimeFilePath(std::string_view name, std::string_view suffix,
                            std::size_t maxLength = std::string::npos);
