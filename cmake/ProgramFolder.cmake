# SPDX-License-Identifier: MIT
# Copies the rain database and the description pages beside the programs of a build tree.
# A file is copied if it is missing or older than its original, so a newer database of the user's own is kept.

set(mero_program_folder_originals "")
if(EXISTS ${CMAKE_SOURCE_DIR}/data/mero.mdb AND IS_DIRECTORY ${CMAKE_SOURCE_DIR}/Webs)
  file(GLOB_RECURSE mero_program_folder_originals CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/Webs/*)
  list(APPEND mero_program_folder_originals ${CMAKE_SOURCE_DIR}/data/mero.mdb)
endif()

set(mero_program_folder_copies "")
foreach(original IN LISTS mero_program_folder_originals)
  file(RELATIVE_PATH name ${CMAKE_SOURCE_DIR} ${original})
  string(REGEX REPLACE "^data/" "" name ${name})
  set(copy ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${name})
  add_custom_command(OUTPUT ${copy}
    COMMAND ${CMAKE_COMMAND} -E copy ${original} ${copy}
    DEPENDS ${original}
    COMMENT "Copying ${name} into the program's folder"
    VERBATIM)
  list(APPEND mero_program_folder_copies ${copy})
endforeach()

if(mero_program_folder_copies)
  add_custom_target(mero_program_folder ALL DEPENDS ${mero_program_folder_copies})
  foreach(program mero mero-batch)
    if(TARGET ${program})
      add_dependencies(${program} mero_program_folder)
    endif()
  endforeach()
endif()
