# The editor's start, main window and first forms, on a project made from the template.
target_sources(ortalune_gui_tests PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/../support/test_env.cpp
  ${CMAKE_CURRENT_LIST_DIR}/app_test_support.cpp
  ${CMAKE_CURRENT_LIST_DIR}/app_start_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/chara_pages_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/database_sheet_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/skill_pages_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/enemy_forms_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/event_act_forms_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/event_forms_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/main_window_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/stage_editor_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/system_pages_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/anim_pages_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/stage_forms_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/testplay_form_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/test_play_run_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/world_map_editor_test.cpp
)
target_compile_definitions(ortalune_gui_tests PRIVATE ORTALUNE_TEMPLATE_DIR="${CMAKE_BINARY_DIR}/share/ortalune/template")
add_dependencies(ortalune_gui_tests ortalune-template)
# The test plays start the real stand-in game.
target_compile_definitions(ortalune_gui_tests PRIVATE ORTALUNE_STANDIN_GAME="$<TARGET_FILE:standin-game>")
add_dependencies(ortalune_gui_tests standin-game)

# The editor at rest on a virtual display: no processor time over ten seconds.
add_test(NAME EditorIdleCpu
  COMMAND ${CMAKE_CURRENT_LIST_DIR}/app_idle_cpu.sh $<TARGET_FILE:ortalune> ${CMAKE_BINARY_DIR}/share/ortalune/template 10)
set_tests_properties(EditorIdleCpu PROPERTIES LABELS slow TIMEOUT 60)

# The animated preview at 20 frames a second, measured over ten seconds, and a page
# without one: the processor time of the thread that runs the windows.
add_test(NAME AnimPreviewIdleCpu COMMAND ortalune_gui_tests --gtest_filter=*IdleCpuTest.*)
set_tests_properties(AnimPreviewIdleCpu PROPERTIES LABELS slow TIMEOUT 120
  ENVIRONMENT "QT_QPA_PLATFORM=offscreen;SDL_AUDIODRIVER=dummy")
