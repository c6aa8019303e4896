target_sources(ortalune_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/edit_config.cpp
  ${CMAKE_CURRENT_LIST_DIR}/ini_row.cpp
  ${CMAKE_CURRENT_LIST_DIR}/project_files.cpp
  ${CMAKE_CURRENT_LIST_DIR}/project_globals.cpp
  ${CMAKE_CURRENT_LIST_DIR}/project_load.cpp
  ${CMAKE_CURRENT_LIST_DIR}/project_tree.cpp
  ${CMAKE_CURRENT_LIST_DIR}/prop_sheet_size.cpp
  ${CMAKE_CURRENT_LIST_DIR}/sheets.cpp
  ${CMAKE_CURRENT_LIST_DIR}/system.cpp
  ${CMAKE_CURRENT_LIST_DIR}/system_defaults.cpp
  ${CMAKE_CURRENT_LIST_DIR}/system_ini.cpp
  ${CMAKE_CURRENT_LIST_DIR}/system_labels.cpp
  ${CMAKE_CURRENT_LIST_DIR}/system_migrations.cpp
  ${CMAKE_CURRENT_LIST_DIR}/system_records.cpp
  ${CMAKE_CURRENT_LIST_DIR}/test_play_labels.cpp
  ${CMAKE_CURRENT_LIST_DIR}/test_play_settings.cpp
)
