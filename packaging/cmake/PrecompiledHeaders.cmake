# Headers of the libraries that many of our files include. The compiler reads them once for a target
# and those like it instead of once a file, which is most of the time that a build would take. A
# file with options of its own has to go without (SKIP_PRECOMPILE_HEADERS): the code is the one of
# the options that the headers were compiled with. Files still include all that they use: presets
# `debug`, `coverage` and `fuzz` precompile nothing, and there a forgotten include does not compile.
set(core_headers <algorithm> <memory> <utility> <vector> <QString> <QTextStream>)
set(widget_headers
    <QAccessibleWidget> <QApplication> <QCheckBox> <QComboBox> <QDialog> <QEvent> <QGraphicsItem>
    <QGraphicsScene> <QGraphicsView> <QHBoxLayout> <QLabel> <QPainter> <QPushButton> <QTimer>)
set(test_headers <gtest/gtest.h> <functional> <string>)
set(widget_test_headers <QTest>)

# precompile_headers(target kind...): of the kinds above, `core` and so on.
function(precompile_headers target)
    if(DRAUGHTS_PRECOMPILE)
        foreach(kind ${ARGN})
            target_precompile_headers(${target} PRIVATE ${${kind}_headers})
        endforeach()
    endif()
endfunction()

# reuse_precompiled_headers(target from): what `from` has precompiled. The two are compiled with the
# same options and definitions.
function(reuse_precompiled_headers target from)
    if(DRAUGHTS_PRECOMPILE)
        target_precompile_headers(${target} REUSE_FROM ${from})
    endif()
endfunction()
