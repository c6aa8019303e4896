find_package(PNG REQUIRED)
find_package(Qt6 REQUIRED COMPONENTS Gui)

target_sources(ortalune_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/bmp_loader.cpp
  ${CMAKE_CURRENT_LIST_DIR}/bmp_writer.cpp
  ${CMAKE_CURRENT_LIST_DIR}/png_loader.cpp
  ${CMAKE_CURRENT_LIST_DIR}/png_writer.cpp
  ${CMAKE_CURRENT_LIST_DIR}/surface.cpp
  ${CMAKE_CURRENT_LIST_DIR}/surface_draw.cpp
  ${CMAKE_CURRENT_LIST_DIR}/text_adapter.cpp
)
# QtGui is used by text_adapter.cpp only.
target_link_libraries(ortalune_core PUBLIC PNG::PNG Qt6::Gui)
