find_package(PkgConfig REQUIRED)
pkg_check_modules(ORTALUNE_SOUND_LIBS REQUIRED IMPORTED_TARGET sdl2 fluidsynth vorbisfile)
find_package(Threads REQUIRED)

target_sources(ortalune_core PRIVATE
  ${CMAKE_CURRENT_LIST_DIR}/midi_stream.cpp
  ${CMAKE_CURRENT_LIST_DIR}/smf_format.cpp
  ${CMAKE_CURRENT_LIST_DIR}/smf_play.cpp
  ${CMAKE_CURRENT_LIST_DIR}/mixer.cpp
  ${CMAKE_CURRENT_LIST_DIR}/synth.cpp
  ${CMAKE_CURRENT_LIST_DIR}/synth_stream.cpp
  ${CMAKE_CURRENT_LIST_DIR}/sdl_audio.cpp
  ${CMAKE_CURRENT_LIST_DIR}/sound_engine.cpp
  ${CMAKE_CURRENT_LIST_DIR}/vox.cpp
  ${CMAKE_CURRENT_LIST_DIR}/music.cpp
  ${CMAKE_CURRENT_LIST_DIR}/sound.cpp
  ${CMAKE_CURRENT_LIST_DIR}/sound_start.cpp
  ${CMAKE_CURRENT_LIST_DIR}/music_render.cpp
)
target_link_libraries(ortalune_core PUBLIC PkgConfig::ORTALUNE_SOUND_LIBS Threads::Threads)
