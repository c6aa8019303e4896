target_sources(ortalune_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/chip_palette.cpp
  ${CMAKE_CURRENT_LIST_DIR}/edit_state.cpp
  ${CMAKE_CURRENT_LIST_DIR}/event_menu.cpp
  ${CMAKE_CURRENT_LIST_DIR}/line_walk.cpp
  ${CMAKE_CURRENT_LIST_DIR}/map_cursor.cpp
  ${CMAKE_CURRENT_LIST_DIR}/map_edit.cpp
  ${CMAKE_CURRENT_LIST_DIR}/stage.cpp
  ${CMAKE_CURRENT_LIST_DIR}/stage_open.cpp
  ${CMAKE_CURRENT_LIST_DIR}/stage_records.cpp
  ${CMAKE_CURRENT_LIST_DIR}/stage_snapshot.cpp
  ${CMAKE_CURRENT_LIST_DIR}/stage_view_draw.cpp
  ${CMAKE_CURRENT_LIST_DIR}/undo_history.cpp
  ${CMAKE_CURRENT_LIST_DIR}/world_edit_state.cpp
  ${CMAKE_CURRENT_LIST_DIR}/world_event.cpp
  ${CMAKE_CURRENT_LIST_DIR}/world_map.cpp
  ${CMAKE_CURRENT_LIST_DIR}/world_view_draw.cpp
)
