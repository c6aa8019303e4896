target_sources(ortalune_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/event.cpp
  ${CMAKE_CURRENT_LIST_DIR}/event_act.cpp
  ${CMAKE_CURRENT_LIST_DIR}/event_act_info.cpp
  ${CMAKE_CURRENT_LIST_DIR}/event_act_rules.cpp
  ${CMAKE_CURRENT_LIST_DIR}/event_names.cpp
  ${CMAKE_CURRENT_LIST_DIR}/event_page_rules.cpp
  ${CMAKE_CURRENT_LIST_DIR}/event_summary.cpp
  ${CMAKE_CURRENT_LIST_DIR}/format_number.cpp
  ${CMAKE_CURRENT_LIST_DIR}/stored_events.cpp
)
