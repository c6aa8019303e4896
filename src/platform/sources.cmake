target_sources(ortalune_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/clock.cpp
  ${CMAKE_CURRENT_LIST_DIR}/cp932.cpp
  ${CMAKE_CURRENT_LIST_DIR}/diagnostics.cpp
  ${CMAKE_CURRENT_LIST_DIR}/elf_section.cpp
  ${CMAKE_CURRENT_LIST_DIR}/file_io.cpp
  ${CMAKE_CURRENT_LIST_DIR}/heap_pages.cpp
  ${CMAKE_CURRENT_LIST_DIR}/instance_lock.cpp
  ${CMAKE_CURRENT_LIST_DIR}/local_socket.cpp
  ${CMAKE_CURRENT_LIST_DIR}/machine_facts.cpp
  ${CMAKE_CURRENT_LIST_DIR}/main_window_link.cpp
  ${CMAKE_CURRENT_LIST_DIR}/process_launch.cpp
  ${CMAKE_CURRENT_LIST_DIR}/prompt.cpp
  ${CMAKE_CURRENT_LIST_DIR}/runtime_path.cpp
  ${CMAKE_CURRENT_LIST_DIR}/stored_path.cpp
)
