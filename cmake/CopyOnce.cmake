# Copies FROM to TO unless something stands at TO.
if(NOT EXISTS ${TO})
  get_filename_component(folder ${TO} DIRECTORY)
  file(MAKE_DIRECTORY ${folder})
  configure_file(${FROM} ${TO} COPYONLY)
endif()
