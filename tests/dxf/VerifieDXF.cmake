# Writes the DXF of the standard network's relief with orva, then reads it back with ezdxf.
#   cmake -DORVA=<orva> -DSOURCE=<source tree> -DTRAVAIL=<folder> -P VerifieDXF.cmake
file(REMOVE_RECURSE "${TRAVAIL}")
file(MAKE_DIRECTORY "${TRAVAIL}")
execute_process(
  COMMAND "${ORVA}" --script "${SOURCE}/tests/dxf/relief-dxf.scn" --racine "${SOURCE}"
  WORKING_DIRECTORY "${TRAVAIL}"
  RESULT_VARIABLE statut
  OUTPUT_VARIABLE sortie)
if(NOT statut EQUAL 0 OR NOT EXISTS "${TRAVAIL}/relief.dxf")
  message(FATAL_ERROR "orva : statut ${statut}\n${sortie}")
endif()
string(REGEX MATCH "\"NbFacettes\",\"valeur\":\"([0-9]+)\"" trouve "${sortie}")
set(facettes "${CMAKE_MATCH_1}")
if(NOT EXISTS /usr/bin/python3)
  message("python3 manque (paquet Debian python3-ezdxf) : vérification sautée")
  return()
endif()
execute_process(
  COMMAND /usr/bin/python3 "${SOURCE}/tests/dxf/verifie_dxf.py" "${TRAVAIL}/relief.dxf" ${facettes}
  RESULT_VARIABLE statut
  OUTPUT_VARIABLE sortie
  ERROR_VARIABLE erreurs)
message("${sortie}${erreurs}")
if(NOT statut EQUAL 0 AND NOT statut EQUAL 77)
  message(FATAL_ERROR "le DXF du relief ne passe pas la vérification d'ezdxf")
endif()
