# Takes the pictures of every window for the manual and lists them with their checksums in FOLDER/pictures.txt, which changes
# only when a picture does. Whose machine it is makes no difference.
execute_process(
  COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C.UTF-8 --unset=QT_FONT_DPI --unset=QT_QPA_PLATFORMTHEME ${SHOTS} --out ${FOLDER} --scale 2 --area ${AREA}
  OUTPUT_VARIABLE told
  ERROR_VARIABLE told
  RESULT_VARIABLE failed)
if(failed)
  message(FATAL_ERROR "The manual's pictures could not be taken: ${told}")
endif()
file(GLOB pictures RELATIVE ${FOLDER} ${FOLDER}/*.png)
set(list "")
foreach(picture ${pictures})
  file(SHA256 ${FOLDER}/${picture} checksum)
  string(APPEND list "${checksum} ${picture}\n")
endforeach()
set(before "")
if(EXISTS ${FOLDER}/pictures.txt)
  file(READ ${FOLDER}/pictures.txt before)
endif()
if(NOT list STREQUAL before)
  file(WRITE ${FOLDER}/pictures.txt "${list}")
endif()
