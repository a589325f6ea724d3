# Ways to say what a target is, so that each folder's list stays a list of names.

# zr_host_library(<name> [LINK <libs>...] SOURCES <files>...)
# One library of the reference host. The headers of hostapi/<name> that hold Q_OBJECT are given among the
# sources, since the library that implements a class also carries its meta object.
function(zr_host_library name)
    cmake_parse_arguments(arg "" "" "SOURCES;LINK;PRIVATE_LINK" ${ARGN})
    add_library(${name} SHARED ${arg_SOURCES})
    string(TOUPPER ${name} upper)
    target_compile_definitions(${name} PRIVATE ${upper}_LIBRARY)
    target_link_libraries(${name} PUBLIC zr_hostapi Qt5::Core ${arg_LINK} PRIVATE zr_strict_qt ${arg_PRIVATE_LINK})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/host)
    set_target_properties(${name} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
    add_library(zrwidget::${name} ALIAS ${name})
endfunction()

# zr_test(<name> [LINK <libs>...] [LABELS <labels>...] [SOURCES <further files>...])
# One test executable from <name>.cpp in the current folder. A warning that no test announced fails it: QtTest
# prints those, and only those, as QWARN.
function(zr_test name)
    cmake_parse_arguments(arg "" "TIMEOUT" "SOURCES;LINK;LABELS" ${ARGN})
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 300)
    endif()
    add_executable(${name} ${name}.cpp ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE zr_test_support ${arg_LINK})
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_LOGGING_RULES=;LC_ALL=C.UTF-8;TZ=Asia/Shanghai"
        FAIL_REGULAR_EXPRESSION "QWARN  :;QCRITICAL:;QFATAL "
        LABELS "${arg_LABELS}"
        TIMEOUT ${arg_TIMEOUT})
endfunction()
