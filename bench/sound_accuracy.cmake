# Tables of how exact the built-in synthesiser's notes are in time and pitch, and its instruments.
add_executable(sound_accuracy ${CMAKE_SOURCE_DIR}/bench/sound_accuracy.cpp
  ${CMAKE_SOURCE_DIR}/tests/synth/sound_meter.cpp)
target_include_directories(sound_accuracy PRIVATE ${CMAKE_SOURCE_DIR}/tests)
target_link_libraries(sound_accuracy PRIVATE melvora_options synth)

add_executable(instruments instruments.cpp)
target_include_directories(instruments PRIVATE ${CMAKE_SOURCE_DIR}/tests)
target_link_libraries(instruments PRIVATE melvora_options synth rehearsal)
