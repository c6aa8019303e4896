// Any bytes given to the record readers: nothing may crash, read outside the data or
// allocate beyond it, and whatever loads must save and load to the same bytes again.
// The describing walk behind the readable form of files reads the same bytes: it may
// not crash either, and reads through whatever loads.

#include <cstdlib>

#include "project/edit_config.h"
#include "project/prop_sheet_size.h"
#include "project/test_play_settings.h"
#include "database/anim.h"
#include "database/battle_ai.h"
#include "database/chara_kinds.h"
#include "database/compati_type.h"
#include "database/help.h"
#include "database/land.h"
#include "database/media_tables.h"
#include "database/move_ai.h"
#include "database/skill_list.h"
#include "event/stored_events.h"
#include "kernel/record_file_describe.h"
#include "kernel/record_vector_file.h"
#include "kernel/test_records.h"
#include "project/system.h"
#include "stage/stage.h"
#include "stage/world_map.h"

namespace {

class cNoObserver : public cFieldObserver {
 public:
  void Number(std::int64_t) override {}
  void Real(double) override {}
  void Text(std::string_view) override {}
  void Numbers(std::span<const std::int32_t>) override {}
  void Numbers(std::span<const std::uint8_t>) override {}
  void Reals(std::span<const double>) override {}
  void BeginList(std::size_t) override {}
  void EndList() override {}
  void BeginRecord(std::span<const std::string_view>) override {}
  void EndRecord() override {}
};

template <class T>
int Described(const std::vector<unsigned char>& input) {
  static cNoObserver nobody;
  SerialFilePtr file = OpenSerialReadBuffer(input);
  return file && DescribeRecord<T>(*file, nobody);
}

template <class T>
int DescribedRows(const std::vector<unsigned char>& input) {
  static cNoObserver nobody;
  SerialFilePtr file = OpenSerialReadBuffer(input);
  std::uint32_t rows = 0;
  if (!file || !ReadRowCount(*file, rows)) return 0;
  for (std::uint32_t i = 0; i < rows; ++i) {
    if (!DescribeRecord<T>(*file, nobody)) return 0;
  }
  return 1;
}

std::vector<unsigned char> SavedBytes(cSerial& record) {
  SerialFilePtr out = OpenSerialWriteBuffer();
  record.Save(out.get());
  return out->Bytes();
}

template <class T>
void CheckRecord(const std::vector<unsigned char>& input) {
  const int described = Described<T>(input);
  T record;
  if (!record.LoadStream(OpenSerialReadBuffer(input))) return;
  if (!described) std::abort();
  std::vector<unsigned char> once = SavedBytes(record);
  T again;
  if (!again.LoadStream(OpenSerialReadBuffer(once))) std::abort();
  if (SavedBytes(again) != once) std::abort();
}

template <class T>
void CheckVector(const std::vector<unsigned char>& input) {
  const int described = DescribedRows<T>(input);
  VECTOR_CLASS<T> records;
  if (!LoadVector(records, OpenSerialReadBuffer(input))) return;
  if (!described) std::abort();
  SerialFilePtr out = OpenSerialWriteBuffer();
  WriteRecordVector(records, out.get());
  std::vector<unsigned char> once = out->Bytes();
  VECTOR_CLASS<T> again;
  if (!LoadVector(again, OpenSerialReadBuffer(once))) std::abort();
  SerialFilePtr out2 = OpenSerialWriteBuffer();
  WriteRecordVector(again, out2.get());
  if (out2->Bytes() != once) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::vector<unsigned char> input(data, data + size);
  // The version byte picks among the gates of the older formats as well.
  CheckRecord<cFieldZoo>(input);
  CheckRecord<cGatedRecord>(input);
  CheckRecord<cEditConfig>(input);
  CheckRecord<cTestPlay>(input);
  CheckRecord<cPropSheetSize>(input);
  CheckVector<cTestItem>(input);
  // The files of the game database.
  CheckRecord<cSystem>(input);
  CheckVector<cSkillList>(input);
  CheckVector<cLand>(input);
  CheckVector<cClass>(input);
  CheckVector<cFriend>(input);
  CheckVector<cEnemy>(input);
  CheckVector<cCompatiType>(input);
  CheckVector<cPtVal>(input);
  CheckVector<cCharaAnimPat>(input);
  CheckVector<cEffectAnimPat>(input);
  CheckVector<cEdPicture>(input);
  CheckVector<cEdBack>(input);
  CheckVector<cEdSound>(input);
  CheckVector<cEdBgm>(input);
  CheckVector<cEdHelp>(input);
  CheckVector<cMoveAITemplate>(input);
  CheckRecord<cMoveAI>(input);
  CheckRecord<cBattleAI>(input);
  // The stored event files.
  CheckVector<cGValInfo>(input);
  CheckVector<cEvent>(input);
  CheckVector<cEventActPlt>(input);
  CheckRecord<cEvent>(input);
  // The stage and the world map.
  CheckRecord<cStage>(input);
  CheckRecord<cWorldMap>(input);
  return 0;
}
