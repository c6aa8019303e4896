#pragma once
// DLG_SENSE, "センス": a class's sense in each category of one skill list.

#include <cstdint>

#include "toolkit/record_form.h"

class DLG_SENSE : public cRecordForm<VECTOR_CLASS<std::int32_t>> {
 public:
  enum : unsigned { kList = 1241, kEdit = 1242 };
  DLG_SENSE(const VECTOR_CLASS<std::int32_t>& source, int list, QWidget* parent = nullptr);

 protected:
  void OnFormCommand(unsigned id, unsigned code) override;

 private:
  CTRL_LIST_CLASS<std::int32_t> m_List;
};
