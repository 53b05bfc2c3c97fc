# Removes the maps of one period, so that an event that was renamed or dropped leaves none behind.
# cmake -DMAPS=game/maps/medieval -P removemaps.cmake
file(GLOB maps "${MAPS}-*.png")
if(maps)
  file(REMOVE ${maps})
endif()
