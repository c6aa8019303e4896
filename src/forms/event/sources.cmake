target_sources(ortalune_forms PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/event_act_form.cpp
)
