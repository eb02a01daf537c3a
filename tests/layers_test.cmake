# The house's rule of includes: they go down the list of rooms, and the logic knows the standard library alone.
#   cmake -DROOT=<the project> -P layers_test.cmake
cmake_minimum_required(VERSION 3.25)

# rooms(<house> <room>:<what it may include> ...): each room may include itself, the rooms that are named, and
# whatever those may include.
function(rooms house)
  foreach(entry ${ARGN})
    string(REGEX MATCH "^([^:]*):(.*)$" _ "${entry}")
    set(room ${CMAKE_MATCH_1})
    string(REPLACE "," ";" below "${CMAKE_MATCH_2}")
    set(all ${room})
    foreach(name ${below})
      list(APPEND all ${name} ${${house}_${name}})
    endforeach()
    list(REMOVE_DUPLICATES all)
    set(${house}_${room} ${all} PARENT_SCOPE)
    set(${house}_${room} ${all})
    list(APPEND names ${room})
  endforeach()
  set(${house} ${names} PARENT_SCOPE)
endfunction()

rooms(logic platform: core:platform service:core gateway:service compose:gateway
  drafts:compose send:drafts addressbook:compose handover:compose saved_texts:core update:compose)
rooms(outside platform: machine:platform standin:)
# The rooms inside the houses; files beside the rooms (error, file_name; the card source) are not looked at.
rooms(platform text: ports:text formats:ports controls:formats)
rooms(machine/jet file: reader:file sql:reader)
rooms(machine/qt screens: typing: modules: look: widgets:look,modules,typing binders:widgets desktop:binders,screens)

# check(<file> <part of the path that names the room> <what the room may include> <logic>)
function(check file part allowed is_logic)
  file(STRINGS ${ROOT}/${file} includes REGEX "^[ \t]*#[ \t]*include")
  foreach(line ${includes})
    if(line MATCHES "\"${part}([^\"/]+)/[^\"]+\"")
      if(NOT CMAKE_MATCH_1 IN_LIST allowed)
        message(SEND_ERROR "${file}: ${line} points up or aside")
      endif()
    elseif(is_logic AND NOT line MATCHES "\"|<[a-z_]+>")
      message(SEND_ERROR "${file}: ${line} is outside the C++ standard library")
    endif()
  endforeach()
endfunction()

function(check_rooms folder house is_logic)
  foreach(room ${${house}})
    file(GLOB_RECURSE files RELATIVE ${ROOT} ${ROOT}/${folder}${room}/*.h ${ROOT}/${folder}${room}/*.cpp)
    foreach(file ${files})
      check(${file} "${folder}" "${${house}_${room}}" ${is_logic})
    endforeach()
  endforeach()
endfunction()

check_rooms("" logic TRUE)
check_rooms("" outside FALSE)
check_rooms("platform/" platform TRUE)
check_rooms("machine/jet/" machine/jet FALSE)
check_rooms("machine/qt/" machine/qt FALSE)
