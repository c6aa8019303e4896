// Any bytes given to the record readers: nothing may crash, read outside the data or
// allocate beyond it, and whatever loads must save and load to the same bytes again.

#include <cstdlib>

#include "app/edit_config.h"
#include "app/prop_sheet_size.h"
#include "app/test_play_settings.h"
#include "kernel/record_vector_file.h"
#include "kernel/test_records.h"

namespace {

std::vector<unsigned char> SavedBytes(cSerial& record) {
  SerialFilePtr out = OpenSerialWriteBuffer();
  record.Save(out.get());
  return out->Bytes();
}

template <class T>
void CheckRecord(const std::vector<unsigned char>& input) {
  T record;
  if (!record.LoadStream(OpenSerialReadBuffer(input))) return;
  std::vector<unsigned char> once = SavedBytes(record);
  T again;
  if (!again.LoadStream(OpenSerialReadBuffer(once))) std::abort();
  if (SavedBytes(again) != once) std::abort();
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
  VECTOR_CLASS<cTestItem> items;
  LoadVector(items, OpenSerialReadBuffer(input));
  return 0;
}
