target_sources(ortalune_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/edit_state.cpp
  ${CMAKE_CURRENT_LIST_DIR}/line_walk.cpp
  ${CMAKE_CURRENT_LIST_DIR}/stage_view_draw.cpp
  ${CMAKE_CURRENT_LIST_DIR}/world_edit_state.cpp
  ${CMAKE_CURRENT_LIST_DIR}/world_view_draw.cpp
  ${CMAKE_CURRENT_LIST_DIR}/stage.cpp
  ${CMAKE_CURRENT_LIST_DIR}/stage_open.cpp
  ${CMAKE_CURRENT_LIST_DIR}/stage_records.cpp
  ${CMAKE_CURRENT_LIST_DIR}/world_event.cpp
  ${CMAKE_CURRENT_LIST_DIR}/world_map.cpp
)
