# Makes the report of the standard network with orva, then converts it to PDF with LibreOffice
# (skipped, with its message, where LibreOffice is missing: Debian's libreoffice-writer-nogui).
#   cmake -DORVA=<orva> -DSOURCE=<source tree> -DTRAVAIL=<folder> -P ConvertitRapport.cmake
file(REMOVE_RECURSE "${TRAVAIL}")
file(MAKE_DIRECTORY "${TRAVAIL}/racine")
file(COPY "${SOURCE}/data/" DESTINATION "${TRAVAIL}/racine/data" PATTERN "sources" EXCLUDE PATTERN "README.md" EXCLUDE)
execute_process(
  COMMAND "${ORVA}" --script "${SOURCE}/tests/image/rapport.scn" --racine "${TRAVAIL}/racine"
  WORKING_DIRECTORY "${TRAVAIL}"
  RESULT_VARIABLE statut
  OUTPUT_VARIABLE sortie)
set(cartes "${TRAVAIL}/racine/data/cartes")
if(NOT statut EQUAL 0 OR NOT EXISTS "${cartes}/Carte_1.odt" OR NOT EXISTS "${cartes}/Differences.odt")
  message(FATAL_ERROR "orva : statut ${statut}\n${sortie}")
endif()
find_program(SOFFICE soffice)
if(NOT SOFFICE)
  message("LibreOffice manque (paquet Debian libreoffice-writer-nogui) : conversion sautée")
  return()
endif()
execute_process(
  COMMAND ${CMAKE_COMMAND} -E env HOME=${TRAVAIL} "${SOFFICE}" --headless --convert-to pdf --outdir "${TRAVAIL}"
          "${cartes}/Carte_1.odt" "${cartes}/Differences.odt"
  RESULT_VARIABLE statut
  OUTPUT_VARIABLE sortie
  ERROR_VARIABLE erreurs
  TIMEOUT 240)
foreach(f Carte_1 Differences)
  if(NOT EXISTS "${TRAVAIL}/${f}.pdf")
    message(FATAL_ERROR "LibreOffice n'a pas converti ${f}.odt :\n${sortie}${erreurs}")
  endif()
  file(STRINGS "${TRAVAIL}/${f}.pdf" pages REGEX "/Type */Page([^s]|$)")
  list(LENGTH pages n)
  if(n LESS 1)
    message(FATAL_ERROR "${f}.pdf n'a pas de page")
  endif()
  message("${f}.pdf : ${n} page(s)")
endforeach()
