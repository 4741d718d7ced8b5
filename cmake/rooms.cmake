# Options for all our targets.
function(ticklog_options target)
  target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR})
  target_compile_definitions(${target} PRIVATE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH QT_USE_QSTRINGBUILDER
    QT_DISABLE_DEPRECATED_BEFORE=0x060400 TICKLOG_VERSION="${PROJECT_VERSION}")
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
    $<$<BOOL:${TICKLOG_WERROR}>:-Werror>)
  if(TICKLOG_SANITIZE)
    target_compile_options(${target} PRIVATE -fsanitize=${TICKLOG_SANITIZE} -fno-omit-frame-pointer
      -fno-sanitize-recover=all
      # The sanitizers' checks keep g++ from seeing that values are set.
      $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
    target_link_options(${target} PRIVATE -fsanitize=${TICKLOG_SANITIZE})
  endif()
  if(TICKLOG_COVERAGE)
    target_compile_options(${target} PRIVATE --coverage)
    target_link_options(${target} PRIVATE --coverage)
  endif()
endfunction()

# ticklog_room(NAME DIRECTORY [RECURSE] [MOC] LINKS ...): one folder, one static library; MOC where it has classes
# with Q_OBJECT. A folder that holds only headers becomes an interface library.
function(ticklog_room name directory)
  cmake_parse_arguments(room "RECURSE;MOC" "" "LINKS" ${ARGN})
  if(room_RECURSE)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${directory}/*.cpp ${directory}/*.h ${directory}/*.qrc)
  else()
    file(GLOB sources CONFIGURE_DEPENDS ${directory}/*.cpp ${directory}/*.h ${directory}/*.qrc)
  endif()
  # A program's room: everything but its main.cpp, so that it can be tested.
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  set(compiled ${sources})
  list(FILTER compiled INCLUDE REGEX "\\.cpp$")
  if(NOT compiled)
    add_library(${name} INTERFACE ${sources})
    target_link_libraries(${name} INTERFACE ${room_LINKS})
    return()
  endif()
  add_library(${name} STATIC ${sources})
  set_target_properties(${name} PROPERTIES AUTOMOC ${room_MOC})
  ticklog_options(${name})
  target_link_libraries(${name} PUBLIC ${room_LINKS})
  ticklog_precompile(${name})
endfunction()

# ticklog_floor(NAME ROOM...): one name for several rooms.
function(ticklog_floor name)
  add_library(${name} INTERFACE)
  target_link_libraries(${name} INTERFACE ${ARGN})
endfunction()

# ticklog_precompile(TARGET): uses a precompiled header: one for targets without widgets, another for those
# with widgets.
function(ticklog_precompile target)
  get_target_property(links ${target} LINK_LIBRARIES)
  if(target STREQUAL "values")
    target_precompile_headers(${target} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/pch.h)
  elseif(target STREQUAL "interface")
    target_precompile_headers(${target} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/pch.h <QWidget> <QAbstractItemView>)
  elseif("interface" IN_LIST links)
    target_precompile_headers(${target} REUSE_FROM interface)
  else()
    target_precompile_headers(${target} REUSE_FROM values)
  endif()
endfunction()
