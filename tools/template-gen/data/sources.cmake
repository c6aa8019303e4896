target_sources(ortalune-template-gen PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/template_data.cpp
  ${CMAKE_CURRENT_LIST_DIR}/template_rules.cpp
  ${CMAKE_CURRENT_LIST_DIR}/template_characters.cpp
  ${CMAKE_CURRENT_LIST_DIR}/template_events.cpp
  ${CMAKE_CURRENT_LIST_DIR}/template_maps.cpp
)
