# generated/icon_drawings.h: the drawings that the program carries, from resources/icons.

foreach(drawing IN ITEMS queueshift queueshift-small page branch help)
    set(file "${PROJECT_SOURCE_DIR}/resources/icons/${drawing}.svg")
    string(REPLACE "-" "_" variable "${drawing}_svg")
    file(READ "${file}" ${variable})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${file}")
endforeach()
configure_file("${PROJECT_SOURCE_DIR}/cmake/icon_drawings.h.in" generated/icon_drawings.h @ONLY)
