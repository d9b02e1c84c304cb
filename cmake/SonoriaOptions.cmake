# One place for the language standard, the warnings and Qt's safety switches: every target of
# ours links sonoria_options, so no target can quietly build with a weaker set.
add_library(sonoria_options INTERFACE)
target_compile_features(sonoria_options INTERFACE cxx_std_20)
target_compile_options(sonoria_options INTERFACE -Wall -Wextra -Wpedantic -Werror
                                                 -Wno-missing-field-initializers)
target_compile_definitions(sonoria_options INTERFACE
    QT_NO_CAST_TO_ASCII
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_NO_FOREACH
    QT_NO_KEYWORDS)

if(SONORIA_SANITIZE)
    set(_san -fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
    target_compile_options(sonoria_options INTERFACE ${_san})
    target_link_options(sonoria_options INTERFACE ${_san})
endif()
