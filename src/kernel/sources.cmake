target_sources(ortalune_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/serial.cpp
  ${CMAKE_CURRENT_LIST_DIR}/serial_fields.cpp
  ${CMAKE_CURRENT_LIST_DIR}/serial_file.cpp
  ${CMAKE_CURRENT_LIST_DIR}/vector_class.cpp
)
