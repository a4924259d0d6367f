# A folder of src/ is one static library and one namespace. Its USES list is the drawing of the
# architecture: a folder finds the headers of the folders named there, and of those that these name
# in turn; all others are not there for it.
#
#   module(engine SOURCES melodik.cpp ... USES results [LIBRARIES PkgConfig::PUGIXML])
function(module name)
  cmake_parse_arguments(M "" "" "SOURCES;USES;LIBRARIES" ${ARGN})
  if(M_SOURCES)
    add_library(${name} STATIC ${M_SOURCES})
    set(scope PUBLIC)
    target_link_libraries(${name} PRIVATE melvora_options)
  else()
    add_library(${name} INTERFACE)
    set(scope INTERFACE)
  endif()
  module_headers(${name} ${name} ${scope})
  target_link_libraries(${name} ${scope} ${M_USES} ${M_LIBRARIES})
endfunction()

# Lets a target find the headers of a folder of src/ as "folder/file.h", and those of no other one.
function(module_headers target folder scope)
  set(alone ${CMAKE_BINARY_DIR}/headers/${folder})
  file(MAKE_DIRECTORY ${alone})
  file(CREATE_LINK ${CMAKE_SOURCE_DIR}/src/${folder} ${alone}/${folder} SYMBOLIC)
  target_include_directories(${target} ${scope} ${alone})
endfunction()

# One test binary per folder, linked with that folder.
#
#   module_tests(engine SOURCES melodik_test.cpp ... [LIBRARIES ...] [TIMEOUT seconds])
function(module_tests name)
  cmake_parse_arguments(M "" "TIMEOUT" "SOURCES;LIBRARIES" ${ARGN})
  add_executable(${name}_tests ${M_SOURCES})
  target_include_directories(${name}_tests PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_link_libraries(${name}_tests PRIVATE melvora_options ${name} ${M_LIBRARIES} GTest::gtest_main)
  if(NOT M_TIMEOUT)
    set(M_TIMEOUT 120)
  endif()
  add_test(NAME ${name} COMMAND ${name}_tests)
  set_tests_properties(${name} PROPERTIES TIMEOUT ${M_TIMEOUT}
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;MELVORA_AUDIO_DRIVER=none")
endfunction()
