target_sources(ortalune_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/app_frame.cpp
  ${CMAKE_CURRENT_LIST_DIR}/battle_mode.cpp
  ${CMAKE_CURRENT_LIST_DIR}/game_program.cpp
  ${CMAKE_CURRENT_LIST_DIR}/idle_frame.cpp
  ${CMAKE_CURRENT_LIST_DIR}/single_instance.cpp
  ${CMAKE_CURRENT_LIST_DIR}/stage_commands.cpp
  ${CMAKE_CURRENT_LIST_DIR}/test_play.cpp
  ${CMAKE_CURRENT_LIST_DIR}/test_play_link.cpp
  ${CMAKE_CURRENT_LIST_DIR}/world_commands.cpp
  ${CMAKE_CURRENT_LIST_DIR}/edit_config_load.cpp
  ${CMAKE_CURRENT_LIST_DIR}/machine_report.cpp
  ${CMAKE_CURRENT_LIST_DIR}/out_of_memory.cpp
  ${CMAKE_CURRENT_LIST_DIR}/report_startup.cpp
)
