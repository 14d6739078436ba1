# The program that builds the property sheets: there and back again, and its answers to what is wrong.
set(NAME morlan7-sheets)
set(SHIPPED ${SHEETS})
set(BAD_SOURCE "znacznik x\n  a tekts\n  b tekst\n  b tekst\n")
set(BAD_ANSWER "bad.txt:2: \"tekts\" is no kind of attribute\nbad.txt:4: \"b\" stands twice\n")
include(${CMAKE_CURRENT_LIST_DIR}/sourcetool.cmake)
file(REMOVE_RECURSE ${FOLDER})
