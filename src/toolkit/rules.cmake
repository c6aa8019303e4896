# ortalune_rules: the rules of the typed controls and of the list control, apart from
# any widget. The unit tests drive them without a display and without Qt.
add_library(ortalune_rules STATIC)
target_sources(ortalune_rules PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/ctrl_types.cpp
  ${CMAKE_CURRENT_LIST_DIR}/edit_box.cpp
  ${CMAKE_CURRENT_LIST_DIR}/editval_rules.cpp
  ${CMAKE_CURRENT_LIST_DIR}/combo_rules.cpp
  ${CMAKE_CURRENT_LIST_DIR}/char_count.cpp
  ${CMAKE_CURRENT_LIST_DIR}/editstr_rules.cpp
  ${CMAKE_CURRENT_LIST_DIR}/list_box.cpp
  ${CMAKE_CURRENT_LIST_DIR}/list_ctrl_base.cpp
  ${CMAKE_CURRENT_LIST_DIR}/list_command.cpp
)
target_link_libraries(ortalune_rules PUBLIC ortalune_core)
