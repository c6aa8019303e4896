# The template's pictures and sounds: a library of their own, so that the unit tests
# can link them as well as the generator.
add_library(ortalune_template_art STATIC
  ${CMAKE_CURRENT_LIST_DIR}/effects.cpp
  ${CMAKE_CURRENT_LIST_DIR}/event_sheets.cpp
  ${CMAKE_CURRENT_LIST_DIR}/figures.cpp
  ${CMAKE_CURRENT_LIST_DIR}/icons.cpp
  ${CMAKE_CURRENT_LIST_DIR}/painter.cpp
  ${CMAKE_CURRENT_LIST_DIR}/sheet_files.cpp
  ${CMAKE_CURRENT_LIST_DIR}/smf_writer.cpp
  ${CMAKE_CURRENT_LIST_DIR}/sounds.cpp
  ${CMAKE_CURRENT_LIST_DIR}/terrain_chips.cpp
  ${CMAKE_CURRENT_LIST_DIR}/template_art.cpp
  ${CMAKE_CURRENT_LIST_DIR}/tunes.cpp
)
target_include_directories(ortalune_template_art PUBLIC ${CMAKE_CURRENT_LIST_DIR}/..)
target_link_libraries(ortalune_template_art PUBLIC ortalune_core)
target_link_libraries(ortalune-template-gen PRIVATE ortalune_template_art)
