# wayland_protocols(NAME XML...): makes a library of Wayland protocols from their descriptions, for clients.
# Include each as <DESCRIPTION-client-protocol.h>; in a compositor as <DESCRIPTION-server-protocol.h>.
function(wayland_protocols name)
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/${name})
  file(MAKE_DIRECTORY ${folder})
  foreach(description IN LISTS ARGN)
    get_filename_component(description ${description} ABSOLUTE)
    get_filename_component(base ${description} NAME_WE)
    set(header ${folder}/${base}-client-protocol.h)
    set(server_header ${folder}/${base}-server-protocol.h)
    set(code ${folder}/${base}-protocol.c)
    add_custom_command(OUTPUT ${header} COMMAND ${WAYLAND_SCANNER} client-header ${description} ${header}
      DEPENDS ${description} VERBATIM)
    add_custom_command(OUTPUT ${server_header}
      COMMAND ${WAYLAND_SCANNER} server-header ${description} ${server_header} DEPENDS ${description} VERBATIM)
    add_custom_command(OUTPUT ${code} COMMAND ${WAYLAND_SCANNER} private-code ${description} ${code}
      DEPENDS ${description} VERBATIM)
    list(APPEND generated ${header} ${server_header} ${code})
  endforeach()
  add_library(${name} STATIC ${generated})
  target_include_directories(${name} SYSTEM INTERFACE ${folder})
  target_link_libraries(${name} PUBLIC PkgConfig::WAYLAND)
endfunction()
