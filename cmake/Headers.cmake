# Half of the time that a source takes to compile is reading the headers of Qt and of the standard library. They
# are read once for all sources of a kind. A source still includes all that it uses, so that it compiles with
# CMAKE_DISABLE_PRECOMPILE_HEADERS, too.
set(common_headers
    <algorithm> <array> <functional> <map> <memory> <optional> <stdexcept> <string> <unordered_map> <utility> <vector>
    <QDateTime> <QDir> <QFile> <QHash> <QJsonArray> <QList> <QMap> <QObject> <QRegularExpression> <QSet> <QString>
    <QStringList> <QUrl> <QVariant>)
target_precompile_headers(quillmere_logic PRIVATE ${common_headers})
target_precompile_headers(quillmere_window PRIVATE ${common_headers}
    <QAction> <QApplication> <QBoxLayout> <QComboBox> <QDialog> <QLabel> <QLineEdit> <QListView> <QPushButton> <QWidget>)
target_precompile_headers(core_tests PRIVATE ${common_headers} <QTemporaryDir> <gtest/gtest.h>)

function(reuse_headers_of owner)
    foreach(target ${ARGN})
        if(TARGET ${target})
            target_precompile_headers(${target} REUSE_FROM ${owner})
        endif()
    endforeach()
endfunction()

reuse_headers_of(quillmere_logic
    quillmere_guided quillmere_practice quillmere_qt quillmere_sim
    quillmere_scenario_parser quillmere_scenario_parts quillmere-fire loopback_server)
reuse_headers_of(core_tests
    accounts_tests browser_tests campaigns_tests content_tests gather_tests platform_tests practice_tests shell_tests
    contract_qt contract_sim engine_tests engine_loopback_tests engine_direct_tests loopback_world
    window_test_support)
