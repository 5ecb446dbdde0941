# SPDX-License-Identifier: MIT
# How a folder becomes a target. A folder without sources yet gives a target without code, or no program at all,
# so that the line of who may use whom stands from the first day.

# velmor_library(NAME [QUICK] SOURCES file... LINK target... PRIVATE target...)
# LINK names what its headers may include, and so whoever uses it; PRIVATE what its sources alone may. QUICK: what every key
# goes through, built for speed where the whole is built for size.
function(velmor_library name)
    cmake_parse_arguments(PARSE_ARGV 1 LIB "QUICK" "" "SOURCES;LINK;PRIVATE")
    if(LIB_SOURCES)
        add_library(${name} STATIC ${LIB_SOURCES})
        target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
        target_link_libraries(${name} PUBLIC ${LIB_LINK} PRIVATE ${LIB_PRIVATE} velmor_warnings)
        target_compile_options(${name} PRIVATE $<$<AND:$<BOOL:${LIB_QUICK}>,$<CONFIG:Release>>:-O2>)
    else()
        add_library(${name} INTERFACE)
        target_include_directories(${name} INTERFACE ${PROJECT_SOURCE_DIR}/src)
        target_link_libraries(${name} INTERFACE ${LIB_LINK})
    endif()
endfunction()

# velmor_program(NAME SOURCES file... LINK target...)
function(velmor_program name)
    cmake_parse_arguments(PARSE_ARGV 1 PROGRAM "" "" "SOURCES;LINK")
    if(PROGRAM_SOURCES)
        add_executable(${name} ${PROGRAM_SOURCES})
        target_link_libraries(${name} PRIVATE ${PROGRAM_LINK} velmor_warnings)
    endif()
endfunction()

# velmor_test(NAME SOURCES file... LINK target...)
# One test program; every test in it is a test of ctest, labelled with the name of the program. A file may hold a
# main() of its own.
function(velmor_test name)
    cmake_parse_arguments(PARSE_ARGV 1 TEST "" "" "SOURCES;LINK")
    if(NOT TEST_SOURCES)
        return()
    endif()
    add_executable(${name} ${TEST_SOURCES})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(${name} PRIVATE ${TEST_LINK} velmor_places velmor_warnings GTest::gtest GTest::gtest_main)
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
                         WORKING_DIRECTORY ${VELMOR_TEST_FOLDER} PROPERTIES TIMEOUT 120 LABELS ${name})
    # The environment is a list, which gtest_discover_tests would take apart: it is set once the tests are known.
    set(settings ${CMAKE_CURRENT_BINARY_DIR}/${name}_environment.cmake)
    file(WRITE ${settings} "if(${name}_TESTS)\n    set_tests_properties(\${${name}_TESTS} PROPERTIES ENVIRONMENT "
                           "\"${VELMOR_TEST_ENVIRONMENT}\")\nendif()\n")
    set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${settings})
endfunction()

# Every folder of walks below DIRECTORY is one test: velmor-walk plays all its files.
function(velmor_walks directory)
    if(NOT TARGET velmor-walk)
        return()
    endif()
    file(GLOB_RECURSE walks CONFIGURE_DEPENDS ${directory}/*.walk)
    set(folders)
    foreach(walk IN LISTS walks)
        cmake_path(GET walk PARENT_PATH folder)
        list(APPEND folders ${folder})
    endforeach()
    list(REMOVE_DUPLICATES folders)
    foreach(folder IN LISTS folders)
        file(GLOB files CONFIGURE_DEPENDS ${folder}/*.walk)
        cmake_path(RELATIVE_PATH folder BASE_DIRECTORY ${directory} OUTPUT_VARIABLE title)
        add_test(NAME "walks/${title}" COMMAND velmor-walk ${files} WORKING_DIRECTORY ${VELMOR_TEST_FOLDER})
        set_tests_properties("walks/${title}" PROPERTIES TIMEOUT 120 LABELS walks
                             ENVIRONMENT "${VELMOR_TEST_ENVIRONMENT}")
    endforeach()
endfunction()
