# The project's warnings, sanitizers and Qt settings in one interface target.
add_library(voran_flags INTERFACE)
target_compile_options(voran_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wdouble-promotion -Wold-style-cast
    -Wnon-virtual-dtor -Woverloaded-virtual -Wformat=2
    $<$<CXX_COMPILER_ID:GNU>:-Wsuggest-override>
    # Qt 5 writes a key with its modifiers as the sum of two enumerations.
    $<$<CXX_COMPILER_ID:Clang>:-Wno-enum-enum-conversion>
    # Clang also minds what a nested class cannot see; GCC looks after the rest.
    $<$<CXX_COMPILER_ID:Clang>:-Wno-shadow>
    # Qt 5's QSKIP() takes further arguments that nobody gives.
    $<$<CXX_COMPILER_ID:Clang>:-Wno-gnu-zero-variadic-macro-arguments>
    $<$<BOOL:${VORAN_WARNINGS_AS_ERRORS}>:-Werror>)
# QGLWidget is deprecated in Qt 5.15 and is the base of every plot on purpose.
target_compile_definitions(voran_flags INTERFACE
    QT_NO_DEPRECATED_WARNINGS)
if(VORAN_SANITIZE)
    # Not enumerations: QGradient() leaves its spread as it finds it, and every copy reads it.
    target_compile_options(voran_flags INTERFACE -fsanitize=address,undefined -fno-sanitize=enum
                                                 -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(voran_flags INTERFACE -fsanitize=address,undefined)
endif()
if(VORAN_FUZZ)
    target_compile_options(voran_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()
