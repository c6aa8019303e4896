#pragma once
// The readable form of a record file: its fields reported to an observer by the
// describing walk of the record class that the file holds, at the file's version. A
// file of a vector of records is a row count and then the rows, each described on its
// own. Each function gives 1 when its part was read; on 0 the file's FailureText says
// why the walk stopped, and the observer has had what came before.

#include "kernel/serial_fields.h"

// The row count at the start of a file of a vector of records.
inline int ReadRowCount(cSerialFile& file, std::uint32_t& count) {
  return serial_detail::ReadCount(&file, 1, count) ? 1 : 0;
}

// One record of class T at the cursor: the whole of a file of one record, or one row.
template <class T>
int DescribeRecord(cSerialFile& file, cFieldObserver& observer) {
  file.SetObserver(&observer);
  T record = ReadingPrototype<T>();
  return DescribeHeldRecord(record, &file) && !file.Failed();
}
