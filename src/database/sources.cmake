target_sources(ortalune_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/elem.cpp
  ${CMAKE_CURRENT_LIST_DIR}/anim.cpp
  ${CMAKE_CURRENT_LIST_DIR}/anim_player.cpp
  ${CMAKE_CURRENT_LIST_DIR}/compati_type.cpp
  ${CMAKE_CURRENT_LIST_DIR}/database.cpp
  ${CMAKE_CURRENT_LIST_DIR}/help.cpp
  ${CMAKE_CURRENT_LIST_DIR}/label_table.cpp
  ${CMAKE_CURRENT_LIST_DIR}/land.cpp
  ${CMAKE_CURRENT_LIST_DIR}/media_tables.cpp
  ${CMAKE_CURRENT_LIST_DIR}/world_chip.cpp
  ${CMAKE_CURRENT_LIST_DIR}/skill.cpp
  ${CMAKE_CURRENT_LIST_DIR}/skill_acquisition.cpp
  ${CMAKE_CURRENT_LIST_DIR}/skill_kind_rules.cpp
  ${CMAKE_CURRENT_LIST_DIR}/skill_list.cpp
  ${CMAKE_CURRENT_LIST_DIR}/table_rows.cpp
)
