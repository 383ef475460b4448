# Makes what programs include, from the headers that mark a class or a function as exported:
#   cmake -DSOURCE=src -DFORWARDING=folder -DINSTALLED=folder -P PublicHeaders.cmake
# FORWARDING gets one file a class, so that #include <Zel3D/SHPlot> works in the tree and once installed.
# INSTALLED gets the headers themselves, with those that they include. Their includes become relative to the
# including file: a program needs no search path on which names such as core/types.h could meet its own.
cmake_minimum_required(VERSION 3.20)

set(mark "(VORANPLOT_EXPORT|Q_DECL_EXPORT)")

file(GLOB all RELATIVE ${SOURCE} ${SOURCE}/*/*.h)
set(public)
foreach(header IN LISTS all)
    file(STRINGS ${SOURCE}/${header} marked REGEX "^((class|struct) )?${mark} ")
    if(marked)
        list(APPEND public ${header})
    endif()
endforeach()

# The headers of a folder's private parts come along when a public one needs them, but get no name of their own.
set(installed ${public})
set(waiting ${public})
while(waiting)
    list(POP_FRONT waiting header)
    file(STRINGS ${SOURCE}/${header} includes REGEX "^#include \"")
    foreach(include IN LISTS includes)
        string(REGEX REPLACE "^#include \"([^\"]+)\".*" "\\1" include "${include}")
        if(NOT include IN_LIST installed)
            list(APPEND installed ${include})
            list(APPEND waiting ${include})
        endif()
    endforeach()
endwhile()

set(written)
# Leaves alone what is up to date, so that nothing is compiled again.
function(write path text)
    set(before)
    if(EXISTS ${path})
        file(READ ${path} before)
    endif()
    if(NOT before STREQUAL text)
        file(WRITE ${path} "${text}")
    endif()
    set(written ${written} ${path} PARENT_SCOPE)
endfunction()

foreach(header IN LISTS installed)
    file(READ ${SOURCE}/${header} text)
    string(REGEX REPLACE "#include \"([a-z0-9]+/[a-z0-9_]+\\.h)\"" "#include \"../\\1\"" text "${text}")
    write(${INSTALLED}/${header} "${text}")
endforeach()

foreach(header IN LISTS public)
    get_filename_component(stem ${header} NAME_WE)
    file(STRINGS ${SOURCE}/${header} classes REGEX "^(class|struct) (${mark} )?[A-Za-z0-9_:]+( final)?( : .*)?$")
    foreach(line IN LISTS classes)
        string(REGEX REPLACE "^(class|struct) (${mark} )?([A-Za-z0-9_:]+).*" "\\4" class "${line}")
        # Of nested classes only the one after which the header is named is included by itself.
        if(class MATCHES "::")
            string(REGEX REPLACE ".*::" "" class ${class})
            string(TOLOWER ${class} lower)
            if(NOT lower STREQUAL stem)
                continue()
            endif()
        endif()
        if("${FORWARDING}/${class}" IN_LIST written)
            message(FATAL_ERROR "Two public headers hold a class ${class}; one is ${header}.")
        endif()
        write(${FORWARDING}/${class} "#include \"${header}\"\n")
    endforeach()
endforeach()

# What became private goes.
file(GLOB_RECURSE present ${FORWARDING}/* ${INSTALLED}/*)
foreach(path IN LISTS present)
    if(NOT path IN_LIST written AND NOT path MATCHES "/(version|features)\\.h$")
        file(REMOVE ${path})
    endif()
endforeach()
