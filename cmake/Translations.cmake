# The languages beside English: translations/NAME_LANGUAGE.ts for each of the names below.
set(VORAN_LANGUAGES de fr)
find_package(Qt5LinguistTools 5.15 REQUIRED)

# voran_translations(target name): the translations of that name, compiled into the target as the resources
# ":/name/translations/name_LANGUAGE.qm".
function(voran_translations target name)
    set(work ${CMAKE_CURRENT_BINARY_DIR}/${name}_translations)
    set(compiled)
    set(entries)
    foreach(language IN LISTS VORAN_LANGUAGES)
        set(source ${PROJECT_SOURCE_DIR}/translations/${name}_${language}.ts)
        set(result ${work}/${name}_${language}.qm)
        add_custom_command(OUTPUT ${result} DEPENDS ${source} VERBATIM
            COMMAND Qt5::lrelease -silent -nounfinished ${source} -qm ${result}
            COMMENT "Compiling the translation ${name}_${language}")
        list(APPEND compiled ${result})
        string(APPEND entries "  <file>${name}_${language}.qm</file>\n")
    endforeach()
    file(CONFIGURE OUTPUT ${work}/${name}.qrc @ONLY CONTENT
        "<RCC><qresource prefix=\"/${name}/translations\">\n${entries}</qresource></RCC>\n")
    set(resources ${work}/qrc_${name}_translations.cpp)
    add_custom_command(OUTPUT ${resources} DEPENDS ${work}/${name}.qrc ${compiled} VERBATIM
        COMMAND Qt5::rcc --name ${name}_translations --output ${resources} ${work}/${name}.qrc)
    set_source_files_properties(${resources} PROPERTIES SKIP_AUTOGEN ON)
    target_sources(${target} PRIVATE ${resources})
endfunction()
