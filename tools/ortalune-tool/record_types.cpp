#include "record_types.h"

#include <array>
#include <cctype>
#include <cstdio>

#include "project/edit_config.h"
#include "project/prop_sheet_size.h"
#include "project/test_play_settings.h"
#include "database/anim.h"
#include "database/compati_type.h"
#include "database/help.h"
#include "database/land.h"
#include "database/media_tables.h"
#include "database/move_ai.h"
#include "database/skill_list.h"
#include "event/stored_events.h"
#include "kernel/record_file_describe.h"
#include "kernel/record_vector_file.h"
#include "project/project_globals.h"
#include "project/system.h"
#include "stage/stage.h"
#include "stage/world_map.h"

namespace fs = std::filesystem;

namespace {

std::string Describe(const fs::path& path) { return path.string(); }

}  // namespace

std::string ReadFailureText(const fs::path& in) {
  std::error_code ec;
  if (!fs::exists(in, ec)) return Describe(in) + ": no such file";
  if (g_bFileTooNew) {
    return Describe(in) + ": version " + std::to_string(g_nFileVersion) + " is newer than this program's " +
           std::to_string(g_nCurVersion);
  }
  if (g_strLastSerialFailure.empty()) return Describe(in) + ": cannot be read";
  return Describe(in) + ": " + g_strLastSerialFailure;
}

namespace {

cResaveResult Saved(const fs::path& in, const fs::path& out, std::uint32_t fromVersion) {
  std::error_code ec;
  auto size = fs::file_size(out, ec);
  return {true, Describe(in) + " (version " + std::to_string(fromVersion) + ") -> " + Describe(out) + " (version " +
                    std::to_string(g_nCurVersion) + ", " + std::to_string(ec ? 0 : size) + " bytes)"};
}

cResaveResult SaveFailed(const fs::path& out) { return {false, Describe(out) + ": cannot be written"}; }

// Reading and writing a file that holds one record, or a vector of records.
template <class T>
struct cFileIo {
  static int Load(T& record, const fs::path& path) { return record.LoadFile(path); }
  static int Save(T& record, const fs::path& path) { return record.SaveFile(path); }
};

// A stage passes through g_Stage: its groups and move AI repair against the stage in
// memory, so a stage read beside it would be cut to that stage's map.
template <>
struct cFileIo<cStage> {
  static int Load(cStage& stage, const fs::path& path) {
    if (!g_Stage.LoadFile(path)) return 0;
    stage = g_Stage;
    return 1;
  }
  static int Save(cStage& stage, const fs::path& path) {
    g_Stage = stage;
    return g_Stage.SaveFile(path);
  }
};

template <class T>
struct cFileIo<VECTOR_CLASS<T>> {
  static int Load(VECTOR_CLASS<T>& records, const fs::path& path) { return LoadVector(records, path); }
  static int Save(VECTOR_CLASS<T>& records, const fs::path& path) {
    // Compatibility rules refer to their own table: the file being written is that table.
    if constexpr (std::is_same_v<T, cCompatiType>) g_Database.m_vecCompatiType = records;
    return SaveVector(records, path);
  }
};

// Reads into a freshly constructed holder and writes it at the current version.
template <class Holder>
cResaveResult Resave(const fs::path& in, const fs::path& out) {
  Holder holder;
  g_strLastSerialFailure.clear();
  if (!cFileIo<Holder>::Load(holder, in)) return {false, ReadFailureText(in)};
  std::uint32_t fromVersion = g_nFileVersion;
  if (!cFileIo<Holder>::Save(holder, out)) return SaveFailed(out);
  return Saved(in, out, fromVersion);
}

// A row of a file that holds one record, and of one that holds a vector of records.
// `name` is the file's name, or, starting with a dot, the extension of several files.
template <class T>
constexpr cRecordFileType RecordFile(const char* typeName, const char* name, const char* summary) {
  const bool extension = name[0] == '.';
  return {typeName, extension ? "" : name, extension ? name : "", summary, &Resave<T>, false, &DescribeRecord<T>};
}

template <class T>
constexpr cRecordFileType VectorFile(const char* typeName, const char* name, const char* summary) {
  return {typeName, name, "", summary, &Resave<VECTOR_CLASS<T>>, true, &DescribeRecord<T>};
}

// Later record classes join by adding a row.
const std::array kRecordFileTypes = {
    VectorFile<cEdBack>("Back", "Back.dat", "backgrounds (data\\database)"),
    VectorFile<cEdBgm>("Bgm", "Bgm.dat", "music (data\\database)"),
    VectorFile<cCharaAnimPat>("CharaAnim", "CharaAnim.dat", "character animations (data\\database)"),
    VectorFile<cClass>("Class", "Class.dat", "classes (data\\database)"),
    VectorFile<cEnemy>("Enemy", "Enemy.dat", "enemies with their AI (data\\database)"),
    VectorFile<cFriend>("Friend", "Friend.dat", "allies (data\\database)"),
    VectorFile<cCompatiType>("CompatiType", "CompatiType.dat", "compatibility types (data\\database)"),
    VectorFile<cEffectAnimPat>("EffectAnim", "EffectAnim.dat", "effect animations (data\\database)"),
    VectorFile<cEdHelp>("Help", "Help.dat", "help topics (data\\database)"),
    VectorFile<cLand>("Land", "Land.dat", "terrain (data\\database)"),
    VectorFile<cMoveAITemplate>("MoveAITemplate", "MoveAITemplate.dat", "saved move AI rule sets (data)"),
    VectorFile<cPtVal>("PartyVal", "PartyVal.dat", "party variables (data\\database)"),
    VectorFile<cEdPicture>("Picture", "Picture.dat", "pictures (data\\database)"),
    VectorFile<cSkillList>("Skill", "Skill.dat", "skill lists with their skills (data\\database)"),
    VectorFile<cEdSound>("Sound", "Sound.dat", "sound effects (data\\database)"),
    RecordFile<cSystem>("System", "System.dat", "game-wide settings and terms (data\\database)"),
    RecordFile<cEvent>("StartEvent", "StartEvent.dat", "the event the game runs at its start (data\\database)"),
    VectorFile<cGValInfo>("GValInfo", "GValInfo.dat", "names of the common variables (data)"),
    VectorFile<cEvent>("EventPlt", "EventPlt.dat", "the event palette's templates (data)"),
    VectorFile<cEventActPlt>("EventActionPlt", "EventActionPlt.dat", "the action palette (data)"),
    RecordFile<cEditConfig>("EditConfig", "EditConfig.dat", "the editor's own settings and window places (e_data)"),
    RecordFile<cPropSheetSize>("SheetSize", "SheetSize.dat", "property sheet scale of this machine (e_data)"),
    RecordFile<cTestPlay>("Testplay", "Testplay.dat", "test play settings (e_data)"),
    RecordFile<cStage>("Stage", ".stg2", "one stage: map, enemies, events, groups (data\\stg)"),
    RecordFile<cWorldMap>("WorldMap", "WorldMap.dat", "the world map with its chips and events (data\\database)"),
};

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (std::tolower(static_cast<unsigned char>(a[i])) != std::tolower(static_cast<unsigned char>(b[i]))) return false;
  }
  return true;
}

}  // namespace

std::span<const cRecordFileType> RecordFileTypes() { return kRecordFileTypes; }

const cRecordFileType* FindRecordTypeByName(std::string_view typeName) {
  for (const cRecordFileType& type : kRecordFileTypes) {
    if (EqualIgnoringCase(type.typeName, typeName)) return &type;
  }
  return nullptr;
}

const cRecordFileType* FindRecordTypeForFile(const fs::path& path) {
  std::string name = path.filename().string();
  std::string extension = path.extension().string();
  for (const cRecordFileType& type : kRecordFileTypes) {
    if (*type.fileName != '\0' && EqualIgnoringCase(type.fileName, name)) return &type;
    if (*type.extension != '\0' && EqualIgnoringCase(type.extension, extension)) return &type;
  }
  return nullptr;
}

const cRecordFileType* RecordTypeOrSay(const fs::path& path, const std::string& typeName, const char* command) {
  const cRecordFileType* type = typeName.empty() ? FindRecordTypeForFile(path) : FindRecordTypeByName(typeName);
  if (type != nullptr) return type;
  if (typeName.empty()) {
    std::fprintf(stderr, "%s: cannot tell the record type of '%s' from its name; give --type\n", command, path.c_str());
  } else {
    std::fprintf(stderr, "%s: unknown record type '%s'\n", command, typeName.c_str());
  }
  std::fprintf(stderr, "'ortalune-tool help' lists the record types\n");
  return nullptr;
}

int DescribeFile(const cRecordFileType& type, cSerialFile& file, cFieldObserver& observer) {
  if (!type.bRows) return type.describeRecord(file, observer);
  std::uint32_t rows = 0;
  if (!ReadRowCount(file, rows)) return 0;
  observer.BeginList(rows);
  for (std::uint32_t i = 0; i < rows; ++i) {
    if (!type.describeRecord(file, observer)) return 0;
  }
  observer.EndList();
  return 1;
}

bool TakeTypeOption(std::span<const std::string> args, std::size_t& i, std::string& typeName) {
  if (args[i] == "--type" && i + 1 < args.size()) {
    typeName = args[++i];
    return true;
  }
  if (!args[i].starts_with("--type=")) return false;
  typeName = args[i].substr(7);
  return true;
}
