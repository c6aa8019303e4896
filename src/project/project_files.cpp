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
constexpr cProjectFile DatabaseList(const char* path) {
  return {path, &LoadList<Member>, &SaveList<Member>};
}

template <auto& Record>
int LoadRecordFile(const char* path) {
  return Record.LoadFile(path);
}

template <auto& Record>
int SaveRecordFile(const char* path) {
  return Record.SaveFile(path);
}

template <auto& Vector>
int LoadVectorFile(const char* path) {
  return LoadVector(Vector, path);
}

template <auto& Vector>
int SaveVectorFile(const char* path) {
  return SaveVector(Vector, path);
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
const cProjectFile kSystemFile = {"data\\database\\System.dat", &LoadRecordFile<g_System>, &SaveRecordFile<g_System>};
const cProjectFile kLandFile = {"data\\database\\Land.dat", &LoadVectorFile<g_vecLand>, &SaveVectorFile<g_vecLand>};
const cProjectFile kSkillFile = {"data\\database\\Skill.dat", &LoadVectorFile<g_vecSkillList>,
                                 &SaveVectorFile<g_vecSkillList>};
const cProjectFile kClassFile = {kClassPath, &LoadVectorFile<g_vecClass>, &SaveVectorFile<g_vecClass>};
const cProjectFile kFriendFile = {kFriendPath, &LoadVectorFile<g_vecFriend>, &SaveVectorFile<g_vecFriend>};
const cProjectFile kEnemyFile = {kEnemyPath, &LoadVectorFile<g_vecEnemy>, &SaveVectorFile<g_vecEnemy>};
const cProjectFile kMoveAITemplateFile = {"data\\MoveAITemplate.dat", &LoadVectorFile<g_vecMoveAITemplate>,
                                          &SaveVectorFile<g_vecMoveAITemplate>};
const cProjectFile kGValInfoFile = {kGValInfoPath,
                                    [](const char* path) {
                                      if (!LoadVector(g_vecGValInfo, path)) return 0;
                                      FitCommonVarNames(g_vecGValInfo);
                                      return 1;
                                    },
                                    &SaveVectorFile<g_vecGValInfo>};
const cProjectFile kEventPltFile = {kEventPltPath, &LoadVectorFile<g_vecEventPlt>, &SaveVectorFile<g_vecEventPlt>};
const cProjectFile kEventActPltFile = {kEventActPltPath, &LoadVectorFile<g_vecEventActPlt>,
                                       &SaveVectorFile<g_vecEventActPlt>};
const cProjectFile kStartEventFile = {kStartEventPath, &LoadRecordFile<g_StartEvent>, &SaveRecordFile<g_StartEvent>};
const cProjectFile kWorldMapFile = {kWorldMapPath, &LoadRecordFile<g_WorldMap>, &SaveRecordFile<g_WorldMap>};

void RepairSkills() {
  for (cSkillList& list : g_vecSkillList) {
    for (cSkill& skill : list.m_vecSkill) skill.FixRefs();
  }
}

int LoadDatabase() {
  for (const cProjectFile* file : {&kCompatiTypeFile, &kPartyValFile, &kCharaAnimFile, &kEffectAnimFile, &kPictureFile,
                                   &kBackFile, &kSoundFile, &kBgmFile, &kHelpFile}) {
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
