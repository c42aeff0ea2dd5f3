// SPDX-License-Identifier: MIT
#include "Figures.h"
#include "SiteProcess.h"
#include "StartedProgram.h"
#include "platform/qt/EngineProfile.h"

#include <QApplication>
#include <QMainWindow>
#include <QNetworkProxy>
#include <QTimer>
#include <QWebEngineView>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

int RunBareWindow(int argc, char** argv) {
    PrepareEngine();
    QApplication application(argc, argv);
    SiteProcess site;
    QNetworkProxy::setApplicationProxy(QNetworkProxy(QNetworkProxy::HttpProxy, u"127.0.0.1"_s, site.Port()));
    QMainWindow window;
    auto* view = new QWebEngineView;
    window.setCentralWidget(view);
    window.resize(1000, 700);
    window.show();
    QObject::connect(view, &QWebEngineView::loadFinished, view, [] {
        QTimer::singleShot(RestMs, qApp, [] {
            std::printf("resident %ld\n", ResidentKb());
            QApplication::exit();
        });
    });
    view->load(QUrl(u"http://www.myspace.example.com/100001"_s));
    return QApplication::exec();
}

} // namespace qlm
