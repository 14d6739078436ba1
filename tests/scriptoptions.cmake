# Checks how PROGRAM, which is morlan7-script, takes its arguments and with what status it ends; FOLDER is a scratch folder.
file(REMOVE_RECURSE ${FOLDER})
file(MAKE_DIRECTORY ${FOLDER}/private)
set(ENV{XDG_RUNTIME_DIR} ${FOLDER}/private)

# Runs the program on INPUT, the lines of a script or nothing, with the arguments behind it.
function(expect status input)
  file(WRITE ${FOLDER}/input "${input}")
  execute_process(
    COMMAND ${PROGRAM} ${ARGN}
    INPUT_FILE ${FOLDER}/input
    WORKING_DIRECTORY ${FOLDER}
    OUTPUT_VARIABLE output
    ERROR_VARIABLE complaint
    RESULT_VARIABLE ended)
  if(NOT ended EQUAL status)
    message(SEND_ERROR "\"${ARGN}\" ended with ${ended} instead of ${status}:\n${output}${complaint}")
  endif()
  if(status EQUAL 2 AND (NOT complaint MATCHES "usage:" OR output))
    message(SEND_ERROR "\"${ARGN}\" does not tell how to use the program")
  endif()
  file(GLOB left ${FOLDER}/private/*)
  if(left)
    message(SEND_ERROR "\"${ARGN}\" left its private folder behind: ${left}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

file(WRITE ${FOLDER}/good.script "echo a\n")
expect(0 "" good.script)
expect(0 "echo a\n")
expect(0 "echo a\n" -)
expect(0 "echo a\n" --now 1998-05-04T12:30:00 --real-processes --profile profile -)
expect(0 "echo a\n" --now=1998-05-04T12:30:00 --profile=profile)
if(NOT EXISTS ${FOLDER}/profile/windows/Morlan7.ini OR NOT EXISTS ${FOLDER}/profile/program/Listy/Tags.lst OR NOT EXISTS ${FOLDER}/profile/temp)
  message(SEND_ERROR "the profile was not filled")
endif()

expect(1 "foo\n")
expect(1 "type a\nclose\n")
if(NOT output MATCHES "\nerror 2 \"the script ends while a question is open\"\n$")
  message(SEND_ERROR "the end inside a question is not told in the last line:\n${output}")
endif()
expect(1 "menu xmn_files_new\nfoo\n")
if(NOT output MATCHES "\nerror 2 \"no such command: foo\"\n$")
  message(SEND_ERROR "something ran behind the failed command:\n${output}")
endif()

expect(2 "" --wrong)
expect(2 "" brak.script)
expect(2 "" ${FOLDER})
expect(2 "" good.script good.script)
expect(2 "" --profile)
expect(2 "" --profile=)
expect(2 "" --now yesterday)
file(REMOVE_RECURSE ${FOLDER})
