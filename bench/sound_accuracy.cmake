# A table of how exact the built-in synthesiser's notes are in time and pitch.
add_executable(sound_accuracy ${CMAKE_SOURCE_DIR}/bench/sound_accuracy.cpp
  ${CMAKE_SOURCE_DIR}/tests/synth/sound_meter.cpp)
target_include_directories(sound_accuracy PRIVATE ${CMAKE_SOURCE_DIR}/tests)
target_link_libraries(sound_accuracy PRIVATE melvora_options synth)
