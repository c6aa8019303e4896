#pragma once
// The project a command works on, found and loaded as the editor would at its start.
// A project that has no "data" yet is read from its "default" tree, as the editor's
// first start would copy it, and every command says so in the same words.

#include <string>

// Enters `dir`, unless it is empty. False after a message naming `command`.
bool EnterProjectDir(const std::string& dir, const char* command);

// While it lives, stored paths under "data" of the project in the current directory
// lead to the tree that holds its data: "data", or "default" before the editor's first
// start, which it then says on stderr.
class cProjectDataHere {
 public:
  explicit cProjectDataHere(const char* command);
  ~cProjectDataHere();
  cProjectDataHere(const cProjectDataHere&) = delete;
  cProjectDataHere& operator=(const cProjectDataHere&) = delete;

  // False when the directory holds neither tree.
  bool Found() const { return m_bFound; }

 private:
  bool m_bFound = false;
  bool m_bReadsDefault = false;
};

// Loads the project that `here` found as the editor's start does, printing every message
// the editor would show. False when the editor would not start on it.
bool LoadProjectHere(const cProjectDataHere& here, const char* command);
