# Finds the program's texts in src/ and writes them to translations/quorvane.ts, or, with
# CHECK, to a copy, failing when the copy differs: a text was added, changed or removed without
# the file being brought up to date. Also fails on a plural text whose English forms are missing.
#
#   cmake -DLUPDATE=/usr/lib/qt6/bin/lupdate -DSOURCE_DIR=<repo> [-DCHECK=<scratch.ts>] -P lupdate.cmake
set(ts ${SOURCE_DIR}/translations/quorvane.ts)
set(target ${ts})
if(CHECK)
    configure_file(${ts} ${CHECK} COPYONLY)
    set(target ${CHECK})
endif()
# No source locations: they would change with every edit above a text.
execute_process(
    COMMAND ${LUPDATE} -silent -locations none -no-obsolete -no-ui-lines -source-language en -target-language en
            -extensions cpp,h,qml -recursive src -ts ${target}
    WORKING_DIRECTORY ${SOURCE_DIR}
    RESULT_VARIABLE failed)
if(failed)
    message(FATAL_ERROR "lupdate failed")
endif()
if(CHECK)
    execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${ts} ${CHECK} RESULT_VARIABLE differs)
    if(differs)
        execute_process(COMMAND diff -u ${ts} ${CHECK})
        message(FATAL_ERROR "translations/quorvane.ts is out of date: run `cmake --build build/dev --target update_translations` and commit it")
    endif()
endif()
file(READ ${target} text)
string(REGEX MATCH "<message numerus=\"yes\">[^<]*<source>[^<]*</source>[^<]*<translation type=\"unfinished\"" unfinished "${text}")
if(unfinished)
    message(FATAL_ERROR "a plural text has no English forms in translations/quorvane.ts:\n${unfinished}")
endif()
