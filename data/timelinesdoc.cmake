# Rewrites the tables of docs/timelines.md, each between its two marks.
# cmake -DTOOL=timelinemaker -DDOCUMENT=docs/timelines.md "-DFOLDERS=ancient;classic" -P timelinesdoc.cmake
cmake_minimum_required(VERSION 3.25)
file(READ ${DOCUMENT} text)

function(renew mark)
  execute_process(COMMAND ${TOOL} ${ARGN} ${FOLDERS} OUTPUT_VARIABLE table COMMAND_ERROR_IS_FATAL ANY)
  string(FIND "${text}" "<!-- ${mark} -->\n" start)
  string(FIND "${text}" "<!-- end of ${mark} -->" end)
  if(start EQUAL -1 OR end LESS start)
    message(FATAL_ERROR "${DOCUMENT} lacks the marks of ${mark}")
  endif()
  string(SUBSTRING "${text}" 0 ${start} before)
  string(SUBSTRING "${text}" ${end} -1 after)
  set(text "${before}<!-- ${mark} -->\n\n${table}\n${after}" PARENT_SCOPE)
endfunction()

renew(balance check --summary)
renew(fairness fairness)
file(WRITE ${DOCUMENT} "${text}")
