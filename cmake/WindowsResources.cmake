# Gives a program for Windows its manifest, version and icon.
#   add_windows_resources(TARGET DESCRIPTION [further lines of the resource file])

set(ORDEX_ICON_SOURCE ${CMAKE_SOURCE_DIR}/resources/icons/ordex.svg)
set(ORDEX_ICON ${CMAKE_BINARY_DIR}/ordex.ico)

# One file with a picture for each size that the shell asks for.
function(make_icon)
  if(TARGET ordex_icon)
    return()
  endif()
  find_program(RSVG_CONVERT rsvg-convert REQUIRED)
  find_program(IMAGE_CONVERT convert REQUIRED)
  set(pictures)
  set(commands)
  foreach(size 16 20 24 32 40 48 64 256)
    set(picture ${CMAKE_BINARY_DIR}/ordex-${size}.png)
    list(APPEND pictures ${picture})
    list(APPEND commands
      COMMAND ${RSVG_CONVERT} -w ${size} -h ${size} -o ${picture} ${ORDEX_ICON_SOURCE})
  endforeach()
  add_custom_command(OUTPUT ${ORDEX_ICON} ${commands}
    COMMAND ${IMAGE_CONVERT} ${pictures} ${ORDEX_ICON}
    DEPENDS ${ORDEX_ICON_SOURCE} VERBATIM)
  add_custom_target(ordex_icon DEPENDS ${ORDEX_ICON})
endfunction()

function(add_windows_resources target ORDEX_DESCRIPTION)
  enable_language(RC)
  get_target_property(name ${target} OUTPUT_NAME)
  if(NOT name)
    set(name ${target})
  endif()
  set(ORDEX_FILE_NAME ${name}.exe)
  set(ORDEX_MANIFEST ${CMAKE_SOURCE_DIR}/resources/windows/program.manifest)
  list(JOIN ARGN "\n" ORDEX_MORE_RESOURCES)
  make_icon()
  # The shell shows the first one by name.
  set(ORDEX_ICON_LINE "aaa_ordex ICON \"${ORDEX_ICON}\"")
  add_dependencies(${target} ordex_icon)
  set(file ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
  configure_file(${CMAKE_SOURCE_DIR}/resources/windows/program.rc.in ${file} @ONLY)
  target_sources(${target} PRIVATE ${file})
  set_source_files_properties(${file} PROPERTIES OBJECT_DEPENDS "${ORDEX_MANIFEST};${ORDEX_ICON}")
endfunction()
