# Draws the Resources tree twice into fresh folders and fails unless both hold the same files,
# byte for byte: the pictures must come out the same on every build.
#   cmake -DTOOL=... -DDATA=... -DFLAGS=... -DWORK=... -P SameTwice.cmake
# Each run gets its own malloc fill pattern (glibc's MALLOC_PERTURB_), so a picture that leaves
# pixels unpainted differs between the runs instead of passing by luck.
file(REMOVE_RECURSE ${WORK})
# two runs one after the other (the commands of one execute_process would form a pipe)
foreach(run first second)
  if(run STREQUAL "first")
    set(perturb 85)
  else()
    set(perturb 170)
  endif()
  execute_process(
    COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen MALLOC_PERTURB_=${perturb}
            ${TOOL} --data ${DATA} --flags ${FLAGS} --out ${WORK}/${run}
    RESULT_VARIABLE result OUTPUT_QUIET ERROR_VARIABLE errors)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "the art tool failed on the ${run} run (exit code ${result}): ${errors}")
  endif()
endforeach()
# the folder listings sorted, so that only the names themselves are compared
file(GLOB_RECURSE first_files RELATIVE ${WORK}/first ${WORK}/first/*)
file(GLOB_RECURSE second_files RELATIVE ${WORK}/second ${WORK}/second/*)
list(SORT first_files)
list(SORT second_files)
list(LENGTH first_files first_count)
list(LENGTH second_files second_count)
if(first_count EQUAL 0)
  message(FATAL_ERROR "the art tool drew nothing")
endif()
if(NOT first_files STREQUAL second_files)
  set(only_first ${first_files})
  list(REMOVE_ITEM only_first ${second_files})
  set(only_second ${second_files})
  list(REMOVE_ITEM only_second ${first_files})
  message(FATAL_ERROR "the two runs drew different sets of pictures (${first_count} and ${second_count}); "
                      "only in the first: ${only_first}; only in the second: ${only_second}")
endif()
set(differing)
foreach(name ${first_files})
  file(SHA256 ${WORK}/first/${name} a)
  file(SHA256 ${WORK}/second/${name} b)
  if(NOT a STREQUAL b)
    list(APPEND differing ${name})
  endif()
endforeach()
if(differing)
  # the folders stay for a look at the differing pictures
  message(FATAL_ERROR "pictures that differ between two runs (kept in ${WORK}): ${differing}")
endif()
file(REMOVE_RECURSE ${WORK})
message(STATUS "${first_count} pictures, the same on both runs")
