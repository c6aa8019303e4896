#include "project/project_files.h"

#include <array>

#include "kernel/record_vector_file.h"
#include "project/project_globals.h"
#include "project/project_load.h"
#include "project/project_tree.h"

namespace {

template <auto Member>
int LoadList(const char* path) {
  return LoadVector(g_Database.*Member, path);
}

template <auto Member>
int SaveList(const char* path) {
  return SaveVector(g_Database.*Member, path);
}

template <auto Member>
void WriteList(cSerialFile* file) {
  WriteRecordVector(g_Database.*Member, file);
}

template <auto Member>
constexpr cProjectFile DatabaseList(const char* path) {
  return {path, &LoadList<Member>, &SaveList<Member>, &WriteList<Member>};
}

template <auto& Record>
int LoadRecordFile(const char* path) {
  return Record.LoadFile(path);
}

template <auto& Record>
int SaveRecordFile(const char* path) {
  return Record.SaveFile(path);
}

template <auto& Record>
void WriteRecordFile(cSerialFile* file) {
  Record.Save(file);
}

template <auto& Record>
constexpr cProjectFile RecordFile(const char* path) {
  return {path, &LoadRecordFile<Record>, &SaveRecordFile<Record>, &WriteRecordFile<Record>};
}

template <auto& Vector>
int LoadVectorFile(const char* path) {
  return LoadVector(Vector, path);
}

template <auto& Vector>
int SaveVectorFile(const char* path) {
  return SaveVector(Vector, path);
}

template <auto& Vector>
void WriteVectorFile(cSerialFile* file) {
  WriteRecordVector(Vector, file);
}

template <auto& Vector>
constexpr cProjectFile VectorFile(const char* path) {
  return {path, &LoadVectorFile<Vector>, &SaveVectorFile<Vector>, &WriteVectorFile<Vector>};
}

constexpr int kFirstVersionWithHelp = 212;

int SaveAll(std::initializer_list<const cProjectFile*> files, std::vector<std::string>* unsaved = nullptr) {
  int allWritten = 1;
  for (const cProjectFile* file : files) {
    if (file->save(file->path)) continue;
    allWritten = 0;
    if (unsaved != nullptr) unsaved->push_back(file->path);
  }
  return allWritten;
}

}  // namespace

const cProjectFile kCompatiTypeFile = DatabaseList<&cDatabase::m_vecCompatiType>("data\\database\\CompatiType.dat");
const cProjectFile kPartyValFile = DatabaseList<&cDatabase::m_vecPtVal>("data\\database\\PartyVal.dat");
const cProjectFile kCharaAnimFile = DatabaseList<&cDatabase::m_vecCharaAnimPat>("data\\database\\CharaAnim.dat");
const cProjectFile kEffectAnimFile = DatabaseList<&cDatabase::m_vecEffectAnimPat>("data\\database\\EffectAnim.dat");
const cProjectFile kPictureFile = DatabaseList<&cDatabase::m_vecPicture>("data\\database\\Picture.dat");
const cProjectFile kBackFile = DatabaseList<&cDatabase::m_vecBack>("data\\database\\Back.dat");
const cProjectFile kSoundFile = DatabaseList<&cDatabase::m_vecSound>("data\\database\\Sound.dat");
const cProjectFile kBgmFile = DatabaseList<&cDatabase::m_vecBgm>("data\\database\\Bgm.dat");
const cProjectFile kHelpFile = DatabaseList<&cDatabase::m_vecHelp>("data\\database\\Help.dat");
const cProjectFile kSystemFile = RecordFile<g_System>("data\\database\\System.dat");
const cProjectFile kLandFile = VectorFile<g_vecLand>("data\\database\\Land.dat");
const cProjectFile kSkillFile = VectorFile<g_vecSkillList>("data\\database\\Skill.dat");
const cProjectFile kClassFile = VectorFile<g_vecClass>(kClassPath);
const cProjectFile kFriendFile = VectorFile<g_vecFriend>(kFriendPath);
const cProjectFile kEnemyFile = VectorFile<g_vecEnemy>(kEnemyPath);
const cProjectFile kMoveAITemplateFile = VectorFile<g_vecMoveAITemplate>("data\\MoveAITemplate.dat");
const cProjectFile kGValInfoFile = {kGValInfoPath,
                                    [](const char* path) {
                                      if (!LoadVector(g_vecGValInfo, path)) return 0;
                                      FitCommonVarNames(g_vecGValInfo);
                                      return 1;
                                    },
                                    &SaveVectorFile<g_vecGValInfo>, &WriteVectorFile<g_vecGValInfo>};
const cProjectFile kEventPltFile = VectorFile<g_vecEventPlt>(kEventPltPath);
const cProjectFile kEventActPltFile = VectorFile<g_vecEventActPlt>(kEventActPltPath);
const cProjectFile kStartEventFile = RecordFile<g_StartEvent>(kStartEventPath);
const cProjectFile kWorldMapFile = RecordFile<g_WorldMap>(kWorldMapPath);

namespace {

const cProjectFile* const kDatabaseLists[] = {&kCompatiTypeFile, &kPartyValFile, &kCharaAnimFile,
                                              &kEffectAnimFile,  &kPictureFile,  &kBackFile,
                                              &kSoundFile,       &kBgmFile,      &kHelpFile};

}  // namespace

std::span<const cProjectFile* const> DatabaseListFiles() { return kDatabaseLists; }

void RepairSkills() {
  for (cSkillList& list : g_vecSkillList) {
    for (cSkill& skill : list.m_vecSkill) skill.FixRefs();
  }
}

int LoadDatabase() {
  for (const cProjectFile* file : kDatabaseLists) {
    if (file == &kHelpFile && g_nFileVersion < kFirstVersionWithHelp) continue;
    if (!file->load(file->path)) {
      ReportLoadFailure(file->path);
      return 0;
    }
  }
  RepairSkills();
  return 1;
}

int SaveDatabase(std::vector<std::string>* unsaved) {
  RepairSkills();
  return SaveAll({&kCompatiTypeFile, &kPartyValFile, &kPictureFile, &kBackFile, &kCharaAnimFile, &kEffectAnimFile,
                  &kSoundFile, &kBgmFile, &kHelpFile},
                 unsaved);
}

int SaveAllDatabaseFiles(std::vector<std::string>* unsaved) {
  int lists = SaveDatabase(unsaved);
  int rest = SaveAll({&kClassFile, &kFriendFile, &kEnemyFile, &kLandFile, &kSkillFile, &kSystemFile, &kWorldMapFile},
                     unsaved);
  return lists && rest;
}

int SaveProjectRecords() {
  CreateProjectDirectories();
  int database = SaveAllDatabaseFiles();
  int rest = SaveAll({&kMoveAITemplateFile, &kGValInfoFile, &kEventPltFile, &kEventActPltFile, &kStartEventFile});
  int stage = g_Stage.SaveFile(g_EditConfig.m_strDefaultStage.c_str());
  return database && rest && stage;
}
