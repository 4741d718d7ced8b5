# ticklog_translations(TARGET): adds every language of resources/translations to a target, as
# :/translations/ticklog_LANGUAGE.qm. Also makes the target `translations`, which updates them from the
# sources.
function(ticklog_translations target)
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/translations)
  file(MAKE_DIRECTORY ${folder})
  file(GLOB sources CONFIGURE_DEPENDS resources/translations/ticklog_*.ts)
  # Does not use Qt's own commands, because their builds may write to the sources.
  foreach(source IN LISTS sources)
    get_filename_component(name ${source} NAME_WE)
    add_custom_command(OUTPUT ${folder}/${name}.qm
      COMMAND Qt6::lrelease -silent -nounfinished ${source} -qm ${folder}/${name}.qm DEPENDS ${source} VERBATIM)
    string(APPEND entries "    <file>${name}.qm</file>\n")
  endforeach()
  file(CONFIGURE OUTPUT ${folder}/translations.qrc CONTENT "<RCC>
  <qresource prefix=\"/translations\">
@entries@  </qresource>
</RCC>
" @ONLY)
  qt_add_resources(compiled ${folder}/translations.qrc)
  target_sources(${target} PRIVATE ${compiled})
  add_custom_target(translations COMMAND scripts/translations.sh $<TARGET_FILE:Qt6::lupdate>
    WORKING_DIRECTORY ${PROJECT_SOURCE_DIR} VERBATIM)
endfunction()
