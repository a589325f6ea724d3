# What a build can be told. The presets set these; see CMakePresets.json.
set(ZR_HOST "reference" CACHE STRING "reference: build the host of this repository; external: take it from ZR_HOST_PREFIX")
set_property(CACHE ZR_HOST PROPERTY STRINGS reference external)
set(ZR_HOST_PREFIX "" CACHE PATH "where an external host's include/ and lib/ lie")
set(ZR_SANITIZE "" CACHE STRING "value of -fsanitize, empty for none")
option(ZR_WERROR "treat warnings as errors" OFF)
option(ZR_COVERAGE "count covered lines" OFF)
option(ZR_TESTS "build the tests" ON)
option(ZR_BENCHMARKS "build the benchmarks" OFF)
option(ZR_FUZZ "build the fuzz targets (clang)" OFF)

if(ZR_HOST STREQUAL "external" AND NOT ZR_HOST_PREFIX)
    message(FATAL_ERROR "ZR_HOST=external needs ZR_HOST_PREFIX")
endif()
