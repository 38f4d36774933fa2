# The few helpers every folder builds its target with.

add_library(quillmere_options INTERFACE)
target_compile_features(quillmere_options INTERFACE cxx_std_20)
target_include_directories(quillmere_options INTERFACE "${CMAKE_SOURCE_DIR}" "${CMAKE_BINARY_DIR}/generated")
target_compile_options(quillmere_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wconversion -Wno-sign-conversion)
if(QUILLMERE_WARNINGS_AS_ERRORS)
  target_compile_options(quillmere_options INTERFACE -Werror)
endif()
if(QUILLMERE_SANITIZERS)
  target_compile_options(quillmere_options INTERFACE
    -fsanitize=${QUILLMERE_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(quillmere_options INTERFACE -fsanitize=${QUILLMERE_SANITIZERS})
endif()

# quillmere_library(<target> SOURCES <files> [PUBLIC <targets>] [PRIVATE <targets>])
# A plain C++ static library of one folder.
function(quillmere_library target)
  cmake_parse_arguments(ARG "" "" "SOURCES;PUBLIC;PRIVATE" ${ARGN})
  add_library(${target} STATIC ${ARG_SOURCES})
  target_link_libraries(${target} PUBLIC quillmere_options ${ARG_PUBLIC} PRIVATE ${ARG_PRIVATE})
endfunction()

# quillmere_test(<target> SOURCES <files> [LINK <targets>] [TIMEOUT <seconds>] [LABELS <labels>])
# One GoogleTest program and one ctest entry. Zone, locale and hash seed are pinned here.
function(quillmere_test target)
  cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;LINK;LABELS" ${ARGN})
  add_executable(${target} ${ARG_SOURCES})
  target_link_libraries(${target} PRIVATE quillmere_options ${ARG_LINK} GTest::gtest_main GTest::gmock)
  add_test(NAME ${target} COMMAND ${target})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 120)
  endif()
  set_tests_properties(${target} PROPERTIES
    TIMEOUT ${ARG_TIMEOUT}
    LABELS "${ARG_LABELS}"
    ENVIRONMENT "TZ=UTC;LC_ALL=C.UTF-8;QT_HASH_SEED=0;QT_QPA_PLATFORM=offscreen")
endfunction()
