# What is tested of every program that builds a definition file from sources. TOOL is the program, named NAME; SHIPPED a file
# that it has built; BAD_SOURCE a text of which it says BAD_ANSWER. The including script may expect more in FOLDER.
file(REMOVE_RECURSE ${FOLDER})
file(MAKE_DIRECTORY ${FOLDER})

# Runs TOOL with the arguments and expects a status and, in what it prints as errors, a text.
function(expect status text)
  execute_process(COMMAND ${TOOL} ${ARGN} WORKING_DIRECTORY ${FOLDER} OUTPUT_FILE ${FOLDER}/output RESULT_VARIABLE answer ERROR_VARIABLE errors)
  string(FIND "${errors}" "${text}" found)
  if(NOT answer EQUAL status OR found EQUAL -1)
    message(FATAL_ERROR "${ARGN}: status ${answer} instead of ${status}, errors: ${errors}")
  endif()
endfunction()

expect(0 "" source ${SHIPPED})
file(RENAME ${FOLDER}/output ${FOLDER}/all.txt)
expect(0 "" compile again.built all.txt)
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${SHIPPED} ${FOLDER}/again.built RESULT_VARIABLE differs)
if(differs)
  message(FATAL_ERROR "what is built from ${FOLDER}/all.txt is not ${SHIPPED}")
endif()

file(WRITE ${FOLDER}/bad.txt "${BAD_SOURCE}")
expect(1 "${BAD_ANSWER}" compile bad.built bad.txt)
if(EXISTS ${FOLDER}/bad.built)
  message(FATAL_ERROR "a faulty source has been built")
endif()
expect(1 "none.txt: cannot be read" compile bad.built none.txt)
expect(1 "none.built: cannot be read" source none.built)
expect(1 "cannot be written" compile none/bad.built all.txt)
expect(2 "${NAME} compile RESULT SOURCE..." compile)
expect(2 "${NAME} source FILE")
