target_sources(ortalune_forms PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/event_act_form.cpp
  ${CMAKE_CURRENT_LIST_DIR}/event_act_form_base.cpp
  ${CMAKE_CURRENT_LIST_DIR}/event_act_map_forms.cpp
  ${CMAKE_CURRENT_LIST_DIR}/event_act_party_forms.cpp
  ${CMAKE_CURRENT_LIST_DIR}/event_act_show_forms.cpp
  ${CMAKE_CURRENT_LIST_DIR}/event_act_value_forms.cpp
  ${CMAKE_CURRENT_LIST_DIR}/action_palette.cpp
  ${CMAKE_CURRENT_LIST_DIR}/dlg_event_set.cpp
  ${CMAKE_CURRENT_LIST_DIR}/dlg_eventact.cpp
  ${CMAKE_CURRENT_LIST_DIR}/dlg_eventactplt.cpp
)
