# The editor's forms, built on the window toolkit.
target_sources(ortalune_gui PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/input_forms.cpp
  ${CMAKE_CURRENT_LIST_DIR}/graphic_chooser.cpp
)
