# Runs one scenario and compares its events with the expected ones.
#
#   cmake -DORVA=<orva> -DSCRIPT=<tests/scenarios/NOM.scn> -DSOURCE=<source tree>
#         -DTRAVAIL=<work folder> -P CompareScenario.cmake
#
# The scenario runs as `orva --script NOM.scn --racine <racine>` from a fresh work folder
# TRAVAIL/NOM. Its standard output must equal NOM.attendu, next to the scenario.
# Comment lines at the head of the scenario set the run:
#   # racine: <path in the source tree>   the data root, copied to TRAVAIL/NOM/racine first so
#                                         that nothing writes into the source tree; without it
#                                         the root is a fresh empty folder TRAVAIL/NOM/racine
#   # donnees: <path in the source tree>  a data folder copied as the root's data/ (the bundled
#                                         standard network: `# donnees: data`)
#   # statut: <n>                         the expected exit status (0 by default)
# Paths of the run are machine-dependent: in the output, the root's path becomes <racine> and
# the work folder's path <depart> before the comparison.

foreach(v ORVA SCRIPT SOURCE TRAVAIL)
  if(NOT DEFINED ${v})
    message(FATAL_ERROR "CompareScenario : -D${v}=... manque")
  endif()
endforeach()

get_filename_component(nom "${SCRIPT}" NAME_WE)
string(REGEX REPLACE "\\.scn$" "" base "${SCRIPT}")
set(attendu "${base}.attendu")

# The settings in the comment lines at the head.
set(racine_source "")
set(donnees_source "")
set(statut_attendu 0)
file(STRINGS "${SCRIPT}" lignes ENCODING UTF-8)
foreach(ligne IN LISTS lignes)
  string(STRIP "${ligne}" ligne)
  if(ligne STREQUAL "")
    continue()
  endif()
  if(NOT ligne MATCHES "^#")
    break()
  endif()
  if(ligne MATCHES "^#[ \t]*racine[ \t]*:[ \t]*(.+)$")
    string(STRIP "${CMAKE_MATCH_1}" racine_source)
  elseif(ligne MATCHES "^#[ \t]*donnees[ \t]*:[ \t]*(.+)$")
    string(STRIP "${CMAKE_MATCH_1}" donnees_source)
  elseif(ligne MATCHES "^#[ \t]*statut[ \t]*:[ \t]*([0-9]+)[ \t]*$")
    set(statut_attendu "${CMAKE_MATCH_1}")
  endif()
endforeach()

set(depart "${TRAVAIL}/${nom}")
file(REMOVE_RECURSE "${depart}")
file(MAKE_DIRECTORY "${depart}/racine")
if(racine_source)
  if(NOT IS_DIRECTORY "${SOURCE}/${racine_source}")
    message(FATAL_ERROR "racine introuvable : ${SOURCE}/${racine_source}")
  endif()
  file(COPY "${SOURCE}/${racine_source}/" DESTINATION "${depart}/racine")
endif()
if(donnees_source)
  if(NOT IS_DIRECTORY "${SOURCE}/${donnees_source}")
    message(FATAL_ERROR "données introuvables : ${SOURCE}/${donnees_source}")
  endif()
  file(COPY "${SOURCE}/${donnees_source}/" DESTINATION "${depart}/racine/data"
       PATTERN "sources" EXCLUDE PATTERN "README.md" EXCLUDE)
endif()
file(REAL_PATH "${depart}" depart)
set(racine "${depart}/racine")

execute_process(
  COMMAND "${ORVA}" --script "${SCRIPT}" --racine "${racine}"
  WORKING_DIRECTORY "${depart}"
  RESULT_VARIABLE statut
  OUTPUT_VARIABLE sortie
  ERROR_VARIABLE diagnostics)

string(REPLACE "${racine}" "<racine>" sortie "${sortie}")
string(REPLACE "${depart}" "<depart>" sortie "${sortie}")
file(WRITE "${depart}/sortie.json" "${sortie}")
if(diagnostics)
  message(STATUS "Sortie d'erreur d'orva :\n${diagnostics}")
endif()

set(echec "")
if(NOT statut STREQUAL statut_attendu)
  set(echec "statut ${statut}, attendu ${statut_attendu}")
endif()
if(NOT EXISTS "${attendu}")
  message(FATAL_ERROR "${attendu} manque ; la sortie est dans ${depart}/sortie.json :\n${sortie}")
endif()
file(READ "${attendu}" contenu_attendu)
if(NOT sortie STREQUAL contenu_attendu)
  execute_process(COMMAND diff -u "${attendu}" "${depart}/sortie.json" OUTPUT_VARIABLE difference)
  string(APPEND echec "\nla sortie diffère de ${attendu} :\n${difference}")
endif()
if(echec)
  message(FATAL_ERROR "scénario ${nom} : ${echec}")
endif()
