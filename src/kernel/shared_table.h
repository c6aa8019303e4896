#pragma once
// A large table inside a record that copies of the record share until one of them
// changes it. A character holds a place per slot of every skill list, and its growth
// and sense tables, so that a copy of an ally table (what a page of the database sheet
// works on) would copy hundreds of megabytes which the page never edits; with them
// shared, the copy is cheap and only a character whose tables change pays for its own.
//
// Reading goes through * and ->; writing only through Edit(), which first gives this
// record a table of its own when another shares it. The compiler keeps every write on
// that path.

#include <memory>
#include <utility>

#include "kernel/serial.h"
#include "kernel/serial_fields.h"

template <class T>
class cSharedTable {
 public:
  const T& operator*() const { return m_p ? *m_p : Empty(); }
  const T* operator->() const { return &**this; }

  T& Edit() {
    if (!m_p) m_p = std::make_shared<T>();
    else if (m_p.use_count() > 1) m_p = std::make_shared<T>(*m_p);
    return *m_p;
  }
  // A whole new table, which no copy needs to see first.
  void Set(T value) { m_p = std::make_shared<T>(std::move(value)); }
  void Clear() { m_p.reset(); }

  // Whether `other` holds the very same table (not merely an equal one).
  bool SharesWith(const cSharedTable& other) const { return m_p != nullptr && m_p == other.m_p; }

 private:
  static const T& Empty() {
    static const T empty;
    return empty;
  }
  std::shared_ptr<T> m_p;
};

// A repair of a shared table: reads go to the shared table until the first write, which
// gives the record its own. Most repairs change nothing and so copy nothing.
template <class T>
class cSharedTableEdit {
 public:
  explicit cSharedTableEdit(cSharedTable<T>& table) : m_Table(table) {}
  const T& Read() const { return m_pOwn != nullptr ? *m_pOwn : *m_Table; }
  T& Write() {
    if (m_pOwn == nullptr) m_pOwn = &m_Table.Edit();
    return *m_pOwn;
  }

 private:
  cSharedTable<T>& m_Table;
  T* m_pOwn = nullptr;
};

// The field function of a shared table, over `field(table, otherTable)`, the field
// function of the table itself: a copy shares, writing and comparing only read, and
// every other operation edits this record's own table.
template <class T, class Field>
int SerialShared(int op, cSharedTable<T>& f, const cSharedTable<T>* o, Field field) {
  const T* other = o != nullptr ? &**o : nullptr;
  switch (op) {
    case SERIAL_INIT: f.Clear(); return 1;
    case SERIAL_COPY:
      if (o != nullptr) f = *o;
      return 1;
    case SERIAL_WRITE:
    case SERIAL_COMPARE:
    case SERIAL_NAME:
    case SERIAL_DESCRIBE:
      // These leave the table as it is; the field function only takes it by reference.
      return field(const_cast<T&>(*f), other);
    default: return field(f.Edit(), other);
  }
}

template <class T>
int SerialSharedRecordVectorVector(int op, cSharedTable<VECTOR_CLASS<VECTOR_CLASS<T>>>& f,
                                   const cSharedTable<VECTOR_CLASS<VECTOR_CLASS<T>>>* o, cSerialFile* file) {
  return SerialShared(op, f, o, [&](VECTOR_CLASS<VECTOR_CLASS<T>>& t, const VECTOR_CLASS<VECTOR_CLASS<T>>* ot) {
    return SerialRecordVectorVector<T>(op, t, ot, file);
  });
}
