#pragma once
// The record files of a project, each bound to the global object it fills, and the
// saves of the database. The load order lives in project_load.cpp.

#include <span>
#include <string>
#include <vector>

class cSerialFile;

struct cProjectFile {
  const char* path;                 // stored path
  int (*load)(const char* path);    // 1 when read whole
  int (*save)(const char* path);    // 1 when written whole
  // What `save` would write after the version, into an open stream: the object's stream
  // as a save would leave it, without touching the file.
  void (*write)(cSerialFile* file);
};

extern const cProjectFile kCompatiTypeFile;
extern const cProjectFile kPartyValFile;
extern const cProjectFile kCharaAnimFile;
extern const cProjectFile kEffectAnimFile;
extern const cProjectFile kPictureFile;
extern const cProjectFile kBackFile;
extern const cProjectFile kSoundFile;
extern const cProjectFile kBgmFile;
extern const cProjectFile kHelpFile;
extern const cProjectFile kSystemFile;
extern const cProjectFile kLandFile;
extern const cProjectFile kSkillFile;
extern const cProjectFile kClassFile;
extern const cProjectFile kFriendFile;
extern const cProjectFile kEnemyFile;
extern const cProjectFile kMoveAITemplateFile;
extern const cProjectFile kGValInfoFile;     // resized to 1000 names once read
extern const cProjectFile kEventPltFile;
extern const cProjectFile kEventActPltFile;
extern const cProjectFile kStartEventFile;
extern const cProjectFile kWorldMapFile;

// The nine lists of g_Database in their load order.
std::span<const cProjectFile* const> DatabaseListFiles();

// The nine lists of g_Database in their load order, failing on the first that does not
// load (after its message). Help is read only from projects of version 212 on, judged
// by the file read just before it; older ones keep an empty list. Every skill is then
// repaired against the lists.
int LoadDatabase();

// The skill repair, then the nine lists in their save order. A file that cannot be
// written is skipped and the others are still tried; 0 when any was skipped, whose
// stored paths go to `unsaved` when given.
int SaveDatabase(std::vector<std::string>* unsaved = nullptr);

// What applying the database sheet writes: the lists, then the other tables of the
// rule set. 0 when any file was skipped, as SaveDatabase.
int SaveAllDatabaseFiles(std::vector<std::string>* unsaved = nullptr);

// Every skill of every list gets its references repaired.
void RepairSkills();

// Every record file of the project from the globals as they stand, the default stage
// included, into the directories CreateProjectDirectories makes. What a new project is
// written with; 0 when any file was skipped.
int SaveProjectRecords();
