# The part of the client that more than one thread runs through, and nothing else: what scripts/tsan builds on a
# toolkit core made for the thread sanitizer, which has neither windows nor widgets.
find_package(Qt5 5.15 REQUIRED COMPONENTS Core Sql Test)
enable_testing()

add_subdirectory(hostapi)
foreach(name zrdefine zrmsg zrevent zrbase zrdatabase zrbusinessdata)
    add_subdirectory(host/${name})
endforeach()
# Its other classes ask the toolkit's windows for help.
zr_host_library(zrutils SOURCES hostapi/zrutils/ZrThread.h host/zrutils/ZrThread.cpp)

set(ZR_THREAD_UNITS
    ZrWaitCondition.cpp ZrAnswerSpin.cpp ZrEventLoop.cpp ZrRequestMessage.cpp ZrPresenterCalls.cpp ZrIncomingMessage.cpp
    ZrPresenterClass.cpp ZrPresenterClass_p.cpp ZrPluginTie.cpp ZrPluginPresenter.cpp)
list(TRANSFORM ZR_THREAD_UNITS PREPEND shell/zrwidget/)
add_library(zrwidget SHARED ${ZR_THREAD_UNITS})
target_compile_definitions(zrwidget PRIVATE ZRWIDGET_LIBRARY PUBLIC ZRWIDGET_EXPORT_PRIVATE)
target_include_directories(zrwidget PUBLIC shell/zrwidget)
target_link_libraries(zrwidget
    PUBLIC zr_hostapi zrbase zrutils zrdefine
    PRIVATE zr_strict_qt zrmsg zrevent zrbusinessdata)

add_library(zr_test_support STATIC tests/support/ZrTestMain.cpp)
target_include_directories(zr_test_support PUBLIC tests/support)
target_link_libraries(zr_test_support PUBLIC Qt5::Test zr_hostapi)
add_subdirectory(tests/presenter)
add_subdirectory(tests/tsan)
