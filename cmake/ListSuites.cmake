# Run after the link of a test binary: asks BINARY (through LAUNCHER) for its tests and writes
# OUTPUT, which adds one CTest entry "PREFIX.<suite>SUFFIX" for each suite. See Suites.cmake.

file(REMOVE "${OUTPUT}")
foreach(setting IN LISTS ENVIRONMENT)
    string(REGEX MATCH "^([^=]+)=(.*)$" matched "${setting}")
    set(ENV{${CMAKE_MATCH_1}} "${CMAKE_MATCH_2}")
endforeach()
execute_process(
    COMMAND ${LAUNCHER} "${BINARY}" --gtest_list_tests
    WORKING_DIRECTORY "${FOLDER}"
    TIMEOUT 180
    RESULT_VARIABLE result
    OUTPUT_VARIABLE listing
    ERROR_VARIABLE complaints)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "${BINARY} --gtest_list_tests: ${result}\n${listing}${complaints}")
endif()

# A line without indentation that ends in a full stop names a suite; "# ..." may follow it. The
# tests below it are indented. Anything else is a program's chatter.
string(REPLACE "\r" "" listing "${listing}")
string(REPLACE ";" "\\;" listing "${listing}")
string(REPLACE "\n" ";" lines "${listing}")
set(suites "")
set(tests 0)
foreach(line IN LISTS lines)
    if(line MATCHES "^([A-Za-z_][A-Za-z0-9_/<>,: ]*)\\.( +#.*)?$")
        list(APPEND suites "${CMAKE_MATCH_1}")
    elseif(line MATCHES "^  [A-Za-z_0-9]")
        math(EXPR tests "${tests} + 1")
    endif()
endforeach()
if(NOT suites)
    message(FATAL_ERROR "${BINARY} holds no test:\n${listing}${complaints}")
endif()
list(REMOVE_DUPLICATES suites)

set(text "")
foreach(suite IN LISTS suites)
    set(name "${PREFIX}.${suite}${SUFFIX}")
    set(properties "TIMEOUT 300 WORKING_DIRECTORY [==[${FOLDER}]==]")
    if(PREFIX STREQUAL "window")
        # One screen, one focus, and nothing beside it that takes its time.
        string(APPEND properties " RESOURCE_LOCK display PROCESSORS 64")
    endif()
    # What each test said is kept, so that the results of a whole run can be put together. Under
    # Wine the framework takes a path with no drive for one below the current folder.
    string(MAKE_C_IDENTIFIER "${name}" identifier)
    set(environment ${ENVIRONMENT} "GTEST_OUTPUT=json:results/${identifier}.json"
        "QUEUESHIFT_REPORT=${FOLDER}/results")
    string(APPEND properties " ENVIRONMENT [==[${environment}]==]")
    set(command "")
    foreach(word IN LISTS LAUNCHER ITEMS "${BINARY}" "--gtest_filter=${suite}.*")
        string(APPEND command " [==[${word}]==]")
    endforeach()
    string(APPEND text "add_test([==[${name}]==]${command})\n"
        "set_tests_properties([==[${name}]==] PROPERTIES ${properties})\n")
endforeach()
file(WRITE "${OUTPUT}" "${text}")
list(LENGTH suites count)
message(STATUS "${PREFIX}: ${tests} tests in ${count} suites")
