# Copies the files FROM into the folder TO, each unless one of its name stands there.
file(MAKE_DIRECTORY ${TO})
foreach(file ${FROM})
  get_filename_component(name ${file} NAME)
  if(NOT EXISTS "${TO}/${name}")
    configure_file(${file} "${TO}/${name}" COPYONLY)
  endif()
endforeach()
