# cmake -DSOURCES=DIR -DOUTPUT=FILE -P MembersInSources.cmake: writes an initializer for each member that the
# sources below DIR read, call or write by name, "{name, is written}", each once.
file(GLOB_RECURSE sources ${SOURCES}/*.cpp ${SOURCES}/*.h)
set(found "")
foreach(source IN LISTS sources)
  file(READ ${source} text)
  string(REPLACE ";" "," text "${text}")
  string(REPLACE "[" "(" text "${text}")
  string(REPLACE "]" ")" text "${text}")
  # x.Get(L"Name"), x.Put(L"Name", ...), PutWhereGiven(x, L"Name", ...) and the rows of mappings,
  # {L"Name", PutAsIs}.
  string(REGEX MATCHALL "[.](Get|GetObject|Call|Put|PutRef)[(]L\"[A-Za-z0-9]+\"|Put[A-Za-z]+[(][a-z]+, L\"[A-Za-z0-9]+\""
         calls "${text}")
  string(REGEX MATCHALL "{L\"[A-Za-z0-9]+\",[ \n]*(data::)?(Put|Read)[A-Za-z]*}" rows "${text}")
  foreach(use IN LISTS calls rows)
    string(REGEX REPLACE ".*L\"([A-Za-z0-9]+)\".*" "\\1" name "${use}")
    if(use MATCHES "Put")
      list(APPEND found "{L\"${name}\", true},")
    else()
      list(APPEND found "{L\"${name}\", false},")
    endif()
  endforeach()
endforeach()
list(REMOVE_DUPLICATES found)
list(SORT found)
list(JOIN found "\n" lines)
# Leaves a file with the same lines alone, so that what includes it need not be compiled again.
file(CONFIGURE OUTPUT ${OUTPUT} CONTENT "${lines}\n" @ONLY)
