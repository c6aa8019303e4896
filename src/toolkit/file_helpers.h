#pragma once
// The file helpers of the pages that name files. Dialogs, asked through the current
// prompt, answer native paths (UTF-8);
// MakeRelative and the stored-path functions of platform/stored_path.h turn them into
// what records keep. ChangeExt, HasExt and ListFiles work on stored paths (CP932, "\").

#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "kernel/vector_class.h"
#include "platform/prompt.h"

// An existing file (files, with bMulti); `path` takes the first. False when cancelled.
bool OpenFileDialog(QWidget* owner, std::string& path, const std::string& initialDir, const std::string& title,
                    const std::string& filter, const std::string& defaultExt, bool bMulti = false,
                    VECTOR_CLASS<std::string>* outFiles = nullptr);
// A file to write. `path` is cleared first unless bKeep, when it is the name offered.
bool SaveFileDialog(QWidget* owner, std::string& path, const std::string& initialDir, const std::string& title,
                    const std::string& filter, const std::string& defaultExt, bool bKeep = false);

// A native path relative to the current directory; a relative one stays. False for an
// empty path.
bool MakeRelative(std::string& path);
// A native path made absolute against the current directory; an absolute one stays.
std::string MakeAbsolute(const std::string& path);

// `path` with what stands behind the last "." of its file name replaced by `ext`; a
// null `ext` also removes the dot. False, with `out` untouched, when the file name has
// no dot: a dot in a directory name is no extension.
bool ChangeExt(std::string& out, const std::string& path, const char* ext);
// Compares what stands behind the last "." of the file name, ignoring ASCII case, as
// the files of projects made on case-blind file systems need.
bool HasExt(const std::string& path, const char* ext);
// Appends "dir\name" for each file of the stored directory `dir` with extension `ext`
// (ignoring case), in name order. Names without a CP932 form are left out.
void ListFiles(VECTOR_CLASS<std::string>& out, const std::string& dir, const char* ext);
