# Run by the build: SOURCES is help/, WORK a scratch folder, BOOK the file to write. See
# HelpBook.cmake. A topic that topics.txt does not name, a number given twice and a link that
# leads nowhere fail the build.

cmake_minimum_required(VERSION 3.25)

# What stands between two texts of a file.
function(text_between text begin end result)
    string(FIND "${text}" "${begin}" from)
    if(from EQUAL -1)
        set(${result} "" PARENT_SCOPE)
        return()
    endif()
    string(LENGTH "${begin}" skip)
    math(EXPR from "${from} + ${skip}")
    string(SUBSTRING "${text}" ${from} -1 rest)
    string(FIND "${rest}" "${end}" length)
    string(SUBSTRING "${rest}" 0 ${length} found)
    set(${result} "${found}" PARENT_SCOPE)
endfunction()

function(append_object file name number topic)
    set(params "<param name=\"Name\" value=\"${name}\">")
    if(NOT number STREQUAL "-")
        string(APPEND params "<param name=\"ID\" value=\"${number}\">")
    endif()
    string(APPEND params "<param name=\"Local\" value=\"${topic}\">")
    file(APPEND "${file}" "<li><object type=\"text/sitemap\">${params}</object>\n")
endfunction()

function(check_links topic text)
    string(REGEX MATCHALL "href=\"[^\"]*\"" links "${text}")
    foreach(link IN LISTS links)
        string(REGEX REPLACE "^href=\"([^\"#]*).*\"$" "\\1" target "${link}")
        if(target AND NOT EXISTS "${SOURCES}/${target}")
            message(FATAL_ERROR "help/${topic}: ${link} leads nowhere")
        endif()
    endforeach()
endfunction()

set(head "<html><head></head><body><ul>\n")
file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}")
set(contents "${WORK}/queueshift.hhc")
set(index "${WORK}/queueshift.hhk")
file(WRITE "${contents}" "${head}")
set(index_rows "")

file(STRINGS "${SOURCES}/topics.txt" rows REGEX "^[0-9]")
set(topics "")
set(numbers "")
set(depth 0)
foreach(row IN LISTS rows)
    if(NOT row MATCHES "^([0-9]) +([0-9]+|-) +([a-z0-9-]+\\.html)$")
        message(FATAL_ERROR "help/topics.txt: not a row of the table: ${row}")
    endif()
    set(wanted_depth "${CMAKE_MATCH_1}")
    set(number "${CMAKE_MATCH_2}")
    set(topic "${CMAKE_MATCH_3}")
    if(NOT number STREQUAL "-" AND number IN_LIST numbers)
        message(FATAL_ERROR "help/topics.txt: ${number} is given twice")
    endif()
    list(APPEND numbers "${number}")
    list(APPEND topics "${topic}")

    file(READ "${SOURCES}/${topic}" text)
    text_between("${text}" "<title>" "</title>" title)
    text_between("${text}" "<meta name=\"keywords\" content=\"" "\"" words)
    if(NOT title OR NOT words)
        message(FATAL_ERROR "help/${topic} has no title or no index words")
    endif()
    check_links("${topic}" "${text}")

    while(depth LESS wanted_depth)
        file(APPEND "${contents}" "<ul>\n")
        math(EXPR depth "${depth} + 1")
    endwhile()
    while(depth GREATER wanted_depth)
        file(APPEND "${contents}" "</ul>\n")
        math(EXPR depth "${depth} - 1")
    endwhile()
    # Below its chapter a topic need not repeat the chapter's name.
    set(entry "${title}")
    if(depth GREATER 0)
        string(REGEX REPLACE "^.* - " "" entry "${title}")
    endif()
    append_object("${contents}" "${entry}" "${number}" "${topic}")
    string(REGEX REPLACE " *, *" ";" words "${words}")
    foreach(word IN LISTS words)
        list(APPEND index_rows "${word}|${topic}")
    endforeach()
    file(COPY "${SOURCES}/${topic}" DESTINATION "${WORK}")
endforeach()
while(depth GREATER 0)
    file(APPEND "${contents}" "</ul>\n")
    math(EXPR depth "${depth} - 1")
endwhile()
file(APPEND "${contents}" "</ul></body></html>\n")

file(GLOB present RELATIVE "${SOURCES}" "${SOURCES}/*.html")
list(REMOVE_ITEM present ${topics})
if(present)
    message(FATAL_ERROR "help/topics.txt does not name: ${present}")
endif()

list(SORT index_rows CASE INSENSITIVE)
file(WRITE "${index}" "${head}")
foreach(row IN LISTS index_rows)
    string(REGEX MATCH "^(.*)\\|(.*)$" matched "${row}")
    append_object("${index}" "${CMAKE_MATCH_1}" "-" "${CMAKE_MATCH_2}")
endforeach()
file(APPEND "${index}" "</ul></body></html>\n")

# No default topic: the toolkit would take it for the book itself, which the viewer does not show.
file(WRITE "${WORK}/queueshift.hhp" "[OPTIONS]
Title=Queueshift
Contents file=queueshift.hhc
Index file=queueshift.hhk
")

set(files queueshift.hhp queueshift.hhc queueshift.hhk ${topics})
# The same sources give the same bytes.
execute_process(
    COMMAND "${CMAKE_COMMAND}" -E tar cf "${BOOK}" --format=zip "--mtime=2000-01-01 00:00:00"
        ${files}
    WORKING_DIRECTORY "${WORK}"
    COMMAND_ERROR_IS_FATAL ANY)
