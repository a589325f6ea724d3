# How everything here is compiled.
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_GLOBAL_AUTOGEN_TARGET ON) # what an analyser needs before it can read the sources
set(CMAKE_AUTORCC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)

find_program(ZR_CCACHE ccache)
if(ZR_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${ZR_CCACHE})
endif()

add_compile_options(-Wall -Wextra -Wnon-virtual-dtor -Woverloaded-virtual)
if(ZR_WERROR)
    add_compile_options(-Werror)
endif()
if(ZR_SANITIZE)
    add_compile_options(-fsanitize=${ZR_SANITIZE} -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${ZR_SANITIZE})
    if(ZR_SANITIZE MATCHES "undefined")
        # vptr: the packaged toolkit is built without type information for some of its classes.
        add_compile_options(-fno-sanitize-recover=all -fno-sanitize=vptr)
        add_link_options(-fno-sanitize-recover=all)
    endif()
endif()
if(ZR_FUZZ)
    # Counts the edges of all our code, so that the fuzzer sees where an input led; main() is the targets' own.
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
if(ZR_COVERAGE)
    add_compile_options(--coverage -fprofile-update=atomic)
    add_link_options(--coverage)
endif()

find_program(ZR_MOLD mold)
if(ZR_MOLD)
    add_link_options(-fuse-ld=mold)
endif()

add_library(zr_strict_qt INTERFACE)
target_compile_definitions(zr_strict_qt INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_FOREACH
    QT_STRICT_ITERATORS
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_DEPRECATED_WARNINGS)
