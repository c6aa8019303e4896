target_sources(ortalune_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/app_frame.cpp
  ${CMAKE_CURRENT_LIST_DIR}/battle_mode.cpp
  ${CMAKE_CURRENT_LIST_DIR}/idle_frame.cpp
  ${CMAKE_CURRENT_LIST_DIR}/single_instance.cpp
  ${CMAKE_CURRENT_LIST_DIR}/edit_config.cpp
  ${CMAKE_CURRENT_LIST_DIR}/edit_config_load.cpp
  ${CMAKE_CURRENT_LIST_DIR}/machine_report.cpp
  ${CMAKE_CURRENT_LIST_DIR}/out_of_memory.cpp
  ${CMAKE_CURRENT_LIST_DIR}/prop_sheet_size.cpp
  ${CMAKE_CURRENT_LIST_DIR}/report_startup.cpp
  ${CMAKE_CURRENT_LIST_DIR}/system_ini.cpp
  ${CMAKE_CURRENT_LIST_DIR}/test_play_labels.cpp
  ${CMAKE_CURRENT_LIST_DIR}/test_play_settings.cpp
)
