target_sources(ortalune_forms PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/event_act_form.cpp
  ${CMAKE_CURRENT_LIST_DIR}/event_act_form_base.cpp
  ${CMAKE_CURRENT_LIST_DIR}/event_act_map_forms.cpp
  ${CMAKE_CURRENT_LIST_DIR}/event_act_party_forms.cpp
  ${CMAKE_CURRENT_LIST_DIR}/event_act_show_forms.cpp
  ${CMAKE_CURRENT_LIST_DIR}/event_act_value_forms.cpp
)
