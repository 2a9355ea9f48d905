# Renders one drawing with the colours of one skin:
#   cmake -DSKIN=skin.txt -DSVG=in.svg -DPNG=out.png -DRSVG=rsvg-convert -P render.cmake
# In a drawing the class fN fills and sN strokes with the skin's colour N, so that one drawing serves all skins.
file(STRINGS ${SKIN} lines REGEX "^color ")
set(css "")
foreach(line IN LISTS lines)
  if(line MATCHES "^color +([0-9]+) +[^ ]+ +(#[0-9A-Fa-f]+)")
    string(APPEND css ".f${CMAKE_MATCH_1}{fill:${CMAKE_MATCH_2}}\n.s${CMAKE_MATCH_1}{stroke:${CMAKE_MATCH_2}}\n")
  endif()
endforeach()
get_filename_component(folder ${PNG} DIRECTORY)
file(MAKE_DIRECTORY ${folder})
file(WRITE ${PNG}.css "${css}")
execute_process(COMMAND ${RSVG} --stylesheet ${PNG}.css --format png --output ${PNG} ${SVG} RESULT_VARIABLE failed)
file(REMOVE ${PNG}.css)
if(failed)
  message(FATAL_ERROR "cannot render ${SVG}")
endif()
