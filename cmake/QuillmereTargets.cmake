# The few helpers every folder builds its target with.

add_library(quillmere_options INTERFACE)
target_compile_features(quillmere_options INTERFACE cxx_std_20)
target_include_directories(quillmere_options INTERFACE "${CMAKE_SOURCE_DIR}" "${CMAKE_BINARY_DIR}/generated")
target_compile_options(quillmere_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wconversion -Wno-sign-conversion)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  # GCC 12 sees overlaps in std::string concatenation that are not there (GCC bug 105329).
  target_compile_options(quillmere_options INTERFACE -Wno-restrict)
endif()
if(QUILLMERE_WARNINGS_AS_ERRORS)
  target_compile_options(quillmere_options INTERFACE -Werror)
endif()
if(QUILLMERE_SANITIZERS)
  target_compile_options(quillmere_options INTERFACE
    -fsanitize=${QUILLMERE_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(quillmere_options INTERFACE -fsanitize=${QUILLMERE_SANITIZERS})
endif()

# Only targets of ours: Qt links the objects of its helper targets by their names.
function(quillmere_unite target)
  if(QUILLMERE_UNITY_BUILD)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 12)
    # A source included by another is a header to this warning.
    target_compile_options(${target} PRIVATE -Wno-subobject-linkage)
  endif()
endfunction()

# quillmere_library(<target> SOURCES <files> [PUBLIC <targets>] [PRIVATE <targets>])
# A plain C++ static library of one folder.
function(quillmere_library target)
  cmake_parse_arguments(ARG "" "" "SOURCES;PUBLIC;PRIVATE" ${ARGN})
  add_library(${target} STATIC ${ARG_SOURCES})
  target_link_libraries(${target} PUBLIC quillmere_options ${ARG_PUBLIC} PRIVATE ${ARG_PRIVATE})
  quillmere_unite(${target})
endfunction()

# quillmere_test(<target> SOURCES <files> [LINK <targets>] [TIMEOUT <seconds>] [LABELS <labels>])
# One GoogleTest program and one ctest entry, labelled "unit" unless said. Zone, locale and hash seed
# are pinned here.
function(quillmere_test target)
  cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;LINK;LABELS" ${ARGN})
  add_executable(${target} ${ARG_SOURCES})
  target_link_libraries(${target} PRIVATE quillmere_options ${ARG_LINK} GTest::gtest_main GTest::gmock)
  quillmere_unite(${target})
  add_test(NAME ${target} COMMAND ${target})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 120)
  endif()
  if(NOT ARG_LABELS)
    set(ARG_LABELS unit)
  endif()
  set_tests_properties(${target} PROPERTIES
    TIMEOUT ${ARG_TIMEOUT}
    LABELS "${ARG_LABELS}"
    ENVIRONMENT "TZ=UTC;LC_ALL=C.UTF-8;QT_HASH_SEED=0;QT_QPA_PLATFORM=offscreen")
endfunction()

# quillmere_qml_module(<folder> [SOURCES <files>] [QML_FILES <files>] [SINGLETONS <files>]
#                      [RESOURCES <files>] [DEPENDS <modules>] [LINK <targets>])
# The QML module Quillmere.<folder> of the folder Quillmere/<folder>: static library
# quillmere_<folder>, whose plugin every program that shows it links as well (quillmere_link_qml).
# DEPENDS names the QML modules whose C++ types are properties of this one's.
function(quillmere_qml_module folder)
  cmake_parse_arguments(ARG "" "" "SOURCES;QML_FILES;SINGLETONS;RESOURCES;DEPENDS;LINK" ${ARGN})
  set(target quillmere_${folder})
  # Only for the module's own sources: the helper targets that Qt adds have nothing to read.
  set(CMAKE_AUTOMOC OFF)
  qt_add_library(${target} STATIC)
  set_target_properties(${target} PROPERTIES AUTOMOC ON)
  set_source_files_properties(${ARG_SINGLETONS} PROPERTIES QT_QML_SINGLETON_TYPE TRUE)
  # Builds that nobody installs read QML at run time, which makes them much quicker to build.
  if(NOT QUILLMERE_COMPILE_QML)
    set(cachegen NO_CACHEGEN)
  endif()
  qt_add_qml_module(${target} ${cachegen}
    URI Quillmere.${folder}
    VERSION 1.0
    RESOURCE_PREFIX /qt/qml
    OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/qml/Quillmere/${folder}"
    IMPORT_PATH "${CMAKE_BINARY_DIR}/qml"
    DEPENDENCIES QtQuick ${ARG_DEPENDS}
    SOURCES ${ARG_SOURCES}
    QML_FILES ${ARG_SINGLETONS} ${ARG_QML_FILES}
    RESOURCES ${ARG_RESOURCES})
  target_link_libraries(${target} PUBLIC quillmere_options Qt6::Quick ${ARG_LINK})
  # Byte code spares the program reading QML when it starts; the C++ that could be made of bindings as
  # well takes minutes to compile and shows no sooner.
  set_target_properties(${target} PROPERTIES QT_QMLCACHEGEN_ARGUMENTS --only-bytecode)
  quillmere_unite(${target})
  # What Qt generates is not ours to warn about.
  get_target_property(sources ${target} SOURCES)
  list(FILTER sources INCLUDE REGEX "/(\\.rcc|qmlcache)/|_qmltyperegistrations")
  set_source_files_properties(${sources} PROPERTIES COMPILE_OPTIONS -w)
  # The registration code that Qt generates includes the headers by their bare names.
  target_include_directories(${target} PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
  set_property(GLOBAL APPEND PROPERTY QUILLMERE_QML_PLUGINS ${target}plugin)
endfunction()

# quillmere_link_qml(<target>): links the plugins of every QML module declared so far.
function(quillmere_link_qml target)
  get_property(plugins GLOBAL PROPERTY QUILLMERE_QML_PLUGINS)
  target_link_libraries(${target} PRIVATE ${plugins})
endfunction()
