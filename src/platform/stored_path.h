#pragma once
// Paths as the project stores them: CP932 bytes, "\" between components, relative to
// the project root. A trail byte of a double-byte character may be 0x5C, so these
// functions never split inside a character.

#include <filesystem>
#include <string>
#include <string_view>

// Offset just behind the last separator ("\" or "/") that is not a trail byte; 0 when
// there is none.
std::size_t FileNameOffset(std::string_view stored);

// "a\b\c.dat" gives "c.dat"; a path without a separator is its own file name.
std::string FileNameOf(std::string_view stored);

// "a\b\c.dat" gives "a\b"; a path without a separator gives "".
std::string DirOf(std::string_view stored);

// The native path of a stored one below `root`. The CP932 text is decoded first, then
// split on "\" and "/". Each component that does not exist with its exact name is
// matched case-insensitively against the directory's entries, as projects arrive from
// a file system that ignores case; a component that matches nothing is kept as given,
// so that new files can be created. An absolute stored path stays absolute.
std::filesystem::path NativePathOf(std::string_view stored, const std::filesystem::path& root);

// Makes NativePathOf read stored paths whose first component is `from` (ignoring case)
// as if it were `to`; empty strings switch this off. Lets a check of a new project read
// "default" where the project will have "data", without copying anything.
void SetStoredPathAlias(const std::string& from, const std::string& to);

// The same below the current directory, the project root of the running program.
std::filesystem::path NativePathOf(std::string_view stored);

// The stored form of a native path: relative to `root` when it lies below it, "\"
// between components, CP932. False when the path lies outside the root or has a
// character without a CP932 form.
bool StoredPathOf(const std::filesystem::path& native, const std::filesystem::path& root,
                  std::string& stored);
