# Makes the guide's pages anew, a fraction of a second for all of them:
#   cmake -DCMARK=<cmark-gfm> -DFROM=<the Markdown> -DTO=<folder of the pages> -P make_pages.cmake
cmake_minimum_required(VERSION 3.25)

# In the order of the navigation.
set(pages index start text voice fax recipients cards personal schedule box sending pages update messages keyboard files privacy)

# A page's title is its first line.
foreach(page ${pages})
  file(STRINGS ${FROM}/${page}.md first LIMIT_COUNT 1 ENCODING UTF-8)
  string(REGEX REPLACE "^# " "" title_of_${page} "${first}")
endforeach()

file(REMOVE_RECURSE ${TO})
file(COPY ${FROM}/style.css DESTINATION ${TO})
file(GLOB pictures ${FROM}/pictures/*.png)
file(COPY ${pictures} DESTINATION ${TO}/pictures)

foreach(page ${pages})
  set(title "${title_of_${page}}")
  set(navigation "")
  foreach(other ${pages})
    set(here "")
    if(other STREQUAL page)
      set(here " aria-current=\"page\"")
    endif()
    string(APPEND navigation "<li><a href=\"${other}.html\"${here}>${title_of_${other}}</a></li>\n")
  endforeach()
  execute_process(COMMAND ${CMARK} --unsafe --extension table --to html ${FROM}/${page}.md
    OUTPUT_VARIABLE content COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX REPLACE "href=\"([a-z]+)\\.md" "href=\"\\1.html" content "${content}")
  # A heading is found under its words with a dash for each blank, as elsewhere.
  string(REGEX REPLACE "<h([23])>([^<]*)<" "<h\\1 id=\"\\2\">\\2<" content "${content}")
  while(content MATCHES "<h[23] id=\"[^\" ]* ")
    string(REGEX REPLACE "(<h[23] id=\"[^\" ]*) " "\\1-" content "${content}")
  endwhile()
  configure_file(${FROM}/page.html ${TO}/${page}.html @ONLY)
endforeach()
