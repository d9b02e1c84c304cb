# The build number is the count of commits, so every landed build carries a distinct one
# without anybody editing a constant by hand.
set(SONORIA_BUILD_NUMBER "" CACHE STRING "Build number; empty means the commit count")
if(SONORIA_BUILD_NUMBER STREQUAL "")
    execute_process(COMMAND git rev-list --count HEAD
                    WORKING_DIRECTORY ${CMAKE_SOURCE_DIR}
                    OUTPUT_VARIABLE _count OUTPUT_STRIP_TRAILING_WHITESPACE
                    RESULT_VARIABLE _rc ERROR_QUIET)
    if(_rc EQUAL 0 AND NOT _count STREQUAL "")
        set(SONORIA_BUILD_NUMBER_VALUE ${_count})
    else()
        set(SONORIA_BUILD_NUMBER_VALUE 0)
    endif()
else()
    set(SONORIA_BUILD_NUMBER_VALUE ${SONORIA_BUILD_NUMBER})
endif()
set(SONORIA_SHORT_VERSION "${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}")
if(PROJECT_VERSION_PATCH GREATER 0)
    set(SONORIA_SHORT_VERSION "${PROJECT_VERSION}")
endif()
configure_file(${CMAKE_SOURCE_DIR}/cmake/SonoriaVersion.h.in
               ${CMAKE_BINARY_DIR}/generated/SonoriaVersion.h @ONLY)
