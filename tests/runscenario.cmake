# Runs one scenario: PROGRAM is morlan7-script, SCENARIO the script, FOLDER the place for NAME.actual and the throw-away
# folder. The throw-away folder stands as "<folder>" in the transcript; it is the current directory.
get_filename_component(name ${SCENARIO} NAME_WE)
get_filename_component(here ${SCENARIO} DIRECTORY)
set(work ${FOLDER}/${name})
set(actual ${FOLDER}/${name}.actual)

file(REMOVE_RECURSE ${work} ${work}-profile)
file(MAKE_DIRECTORY ${work})
if(IS_DIRECTORY ${here}/${name})
  file(COPY ${here}/${name}/ DESTINATION ${work})
endif()

# Settings of its own, or those that all share.
set(settings ${here}/${name}.ini)
if(NOT EXISTS ${settings})
  set(settings ${here}/Morlan7.ini)
endif()
file(MAKE_DIRECTORY ${work}-profile/windows)
configure_file(${settings} ${work}-profile/windows/Morlan7.ini COPYONLY)

set(options --now 1998-05-04T12:30:00)
file(STRINGS ${SCENARIO} line REGEX "^# options: " LIMIT_COUNT 1)
if(line)
  string(REPLACE "# options: " "" line "${line}")
  separate_arguments(options UNIX_COMMAND "${line}")
endif()
execute_process(
  COMMAND ${PROGRAM} --profile ${work}-profile ${options} ${SCENARIO}
  WORKING_DIRECTORY ${work}
  OUTPUT_FILE ${actual}
  RESULT_VARIABLE status)

# The folder appears in the program's form, within JSON strings.
string(REPLACE "/" "\\\\" folder "c:${work}")
file(READ ${actual} transcript)
string(REPLACE "${folder}-profile" "<profile>" transcript "${transcript}")
string(REPLACE "${folder}" "<folder>" transcript "${transcript}")
file(WRITE ${actual} "${transcript}")

set(due 0)
if(transcript MATCHES "(^|\n)error [0-9]+ [^\n]*\n$")
  set(due 1)
endif()
execute_process(COMMAND diff -u --label ${name}.expected --label ${name}.actual ${here}/${name}.expected ${actual} RESULT_VARIABLE differs)
if(differs)
  message(FATAL_ERROR "the transcript of ${name} is not the expected one; it lies in ${actual}")
endif()
if(NOT status EQUAL due)
  message(FATAL_ERROR "${name} ended with the status ${status} instead of ${due}")
endif()
file(REMOVE ${actual})
file(REMOVE_RECURSE ${work} ${work}-profile)
