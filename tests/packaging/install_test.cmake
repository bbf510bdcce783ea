# Installs the build into folders of its own, in both layouts, and starts what lies there. BUILD is the build folder,
# CONFIGURATION its configuration, DATA the data folder of the sources; HOST and QUINTARA are the names of the programs
# (QUINTARA is not set where there are no windows); BINDIR, DATADIR, MANDIR, DOCDIR lie below the prefix.
cmake_policy(VERSION 3.25)

string(RANDOM LENGTH 8 number)
set(folder ${BUILD}/Testing/install-${number})
set(ENV{DESTDIR})
set(ENV{QT_QPA_PLATFORM} offscreen)
set(ENV{QT_QPA_PLATFORMTHEME})
set(ENV{XDG_DATA_HOME} ${folder}/player)

# Each installation leaves a list of its files in the build folder. Whoever has installed the game may need theirs.
set(list_of_files ${BUILD}/install_manifest.txt)
if(EXISTS ${list_of_files})
  file(COPY ${list_of_files} DESTINATION ${folder})
endif()

function(clean_up)
  file(REMOVE ${list_of_files} ${BUILD}/install_manifest_portable.txt)
  if(EXISTS ${folder}/install_manifest.txt)
    file(COPY ${folder}/install_manifest.txt DESTINATION ${BUILD})
  endif()
  file(REMOVE_RECURSE ${folder})
endfunction()

function(fail text)
  clean_up()
  message(FATAL_ERROR ${text})
endfunction()

# run(COMMAND...) sets `output`; the command has to succeed.
function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    fail("${ARGN}: ended with ${result}\n${output}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

# expect_files(FOLDER FILE...): just these files lie below the folder.
function(expect_files where)
  file(GLOB_RECURSE found LIST_DIRECTORIES false RELATIVE ${where} ${where}/*)
  set(missing ${ARGN})
  set(surplus ${found})
  list(REMOVE_ITEM missing ${found})
  list(REMOVE_ITEM surplus ${ARGN})
  if(missing OR surplus)
    fail("below ${where} these files are missing: ${missing}; and these should not be there: ${surplus}")
  endif()
endfunction()

# The game has no command that ends it, so it is given some seconds to make its files, and more on a busy machine.
function(expect_game_makes program list settings)
  foreach(seconds 1 4 16)
    execute_process(COMMAND ${program} TIMEOUT ${seconds} RESULT_VARIABLE result OUTPUT_VARIABLE output
                    ERROR_VARIABLE output)
    if(NOT result MATCHES "timeout")
      fail("${program}: ended with ${result}\n${output}")
    endif()
    if(EXISTS ${list} AND EXISTS ${settings})
      return()
    endif()
  endforeach()
  fail("${program} made no ${list} or no ${settings}")
endfunction()

# expect_host_plays(PROGRAM [DATA_FOLDER]): it opens a document.
function(expect_host_plays)
  set(script ${folder}/script)
  file(WRITE ${script} "start\nanswer menu mnuRules\nclick Quintara.cmdHelp\nquit\n")
  execute_process(COMMAND ${ARGN} INPUT_FILE ${script} RESULT_VARIABLE result OUTPUT_VARIABLE output
                  ERROR_VARIABLE output)
  if(NOT result EQUAL 0 OR NOT output MATCHES "! show Analysis" OR output MATCHES "error:|! box")
    fail("${ARGN}: ended with ${result}\n${output}")
  endif()
endfunction()

set(install ${CMAKE_COMMAND} --install ${BUILD})
if(CONFIGURATION)
  list(APPEND install --config ${CONFIGURATION})
endif()
file(GLOB_RECURSE data RELATIVE ${DATA} ${DATA}/*.rtf ${DATA}/*.bmp ${DATA}/*.wav ${DATA}/Masters.txt)

# Spread over the folders of the system.
set(system ${folder}/system)
set(installed_data ${data})
list(TRANSFORM installed_data PREPEND ${DATADIR}/quintara/data/)
set(files ${installed_data} ${BINDIR}/${HOST} ${MANDIR}/man6/quintara-host.6
    ${DOCDIR}/LICENSE ${DOCDIR}/README.md ${DOCDIR}/CHANGELOG.md ${DOCDIR}/docs/host-protocol.md)
if(QUINTARA)
  set(entry ${DATADIR}/applications/quintara.desktop)
  set(metainfo ${DATADIR}/metainfo/io.github.quintara.Quintara.metainfo.xml)
  list(APPEND files ${BINDIR}/${QUINTARA} ${MANDIR}/man6/quintara.6 ${entry} ${metainfo})
  foreach(size 16 24 32 48 64 128 256 512)
    list(APPEND files ${DATADIR}/icons/hicolor/${size}x${size}/apps/quintara.png)
  endforeach()
endif()
run(${install} --prefix ${system})
expect_files(${system} ${files})
file(COPY ${system}/${DATADIR}/quintara/data/ DESTINATION ${folder}/copy)
expect_host_plays(${system}/${BINDIR}/${HOST} ${folder}/copy)
if(QUINTARA)
  expect_game_makes(${system}/${BINDIR}/${QUINTARA} ${folder}/player/quintara/Masters.txt
                    ${folder}/player/quintara/extra.txt)
  expect_files(${system} ${files})
  expect_files(${folder}/player quintara/Masters.txt quintara/extra.txt)
endif()

# One folder that is moved to where it is played.
run(${install} --prefix ${folder}/made --component portable)
set(portable ${folder}/unpacked)
file(RENAME ${folder}/made ${portable})
list(TRANSFORM data PREPEND data/)
set(files ${data} ${HOST} ${QUINTARA} LICENSE README.md CHANGELOG.md docs/host-protocol.md)
expect_files(${portable} ${files})
expect_host_plays(${portable}/${HOST})
file(REMOVE_RECURSE ${folder}/player ${portable}/data/extra.txt)
if(QUINTARA)
  expect_game_makes(${portable}/${QUINTARA} ${portable}/data/Masters.txt ${portable}/data/extra.txt)
  expect_files(${portable} ${files} data/extra.txt)
  if(EXISTS ${folder}/player)
    fail("the unpacked game keeps files outside its folder")
  endif()
endif()

clean_up()
