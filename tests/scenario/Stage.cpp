// SPDX-License-Identifier: MIT
#include "Stage.h"
#include "Arguments.h"
#include "Widgets.h"
#include "program/MainForm.h"
#include "program/StartUp.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <algorithm>

namespace qlm::scenario {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int LocalApplicationData = 28;
constexpr QLatin1StringView FolderOfData = "Quillmere"_L1;

QString DeploymentText() {
    QFile file(QStringLiteral(QUILLMERE_DEPLOYMENT));
    if (!file.open(QIODevice::ReadOnly))
        Fail(u"cannot read %1"_s.arg(file.fileName()));
    return QString::fromUtf8(file.readAll());
}

QWidget* WidgetOn(const std::vector<QWidget*>& forms, const QString& name) {
    for (QWidget* form : forms)
        if (QWidget* widget = FindWidget(form, name))
            return widget;
    return nullptr;
}

QWidget* Need(QWidget* widget, const QString& name, const ScenarioDialogs& dialogs) {
    if (!widget)
        Fail(u"no open form has %1; open: %2"_s.arg(name, dialogs.OpenForms().join(u", "_s)));
    return widget;
}

void InstallTemplates(const QString& folder) {
    const QDir installed(QStringLiteral(QUILLMERE_TEMPLATES));
    const QDir copies(folder + u"/Preview Templates"_s);
    copies.mkpath(copies.path());
    for (const QString& name : installed.entryList(QDir::Files))
        QFile::copy(installed.filePath(name), copies.filePath(name));
}

} // namespace

Stage::Stage(MachineMaker makeMachine)
    : dialogs([this]() -> Play& { return *play; }), m_makeMachine(std::move(makeMachine)) {
    world.installationFolder = m_folder.filePath(u"program"_s);
    world.dataFolder = m_folder.filePath(u"data"_s);
    QDir().mkpath(world.installationFolder);
    QDir().mkpath(world.dataFolder);
    InstallTemplates(world.installationFolder);
    world.deploymentText = DeploymentText();
    world.settings.SaveSetting(u"General"_s, u"mnuEnableLogging"_s, u"True"_s);
    world.http.responder = [this](const QString& url) { return AnswerHttp(url); };
    world.web.responder = [this](const SimRequest& request) { return AnswerPage(request); };
    StartMachine();
}

Stage::~Stage() {
    DropProgram();
    RestoreZone();
}

void Stage::StartMachine() {
    m_machine = m_makeMachine(world, dialogs);
    m_machine->SetOnPump([this] { play->OnPump(); });
    m_machine->Services().Attention().onRestore = [this] { RestoreMain(); };
}

QWidget* Stage::ViewOf(BrowserName name) {
    if (QWidget* shown = m_machine->ViewOf(name))
        return shown;
    std::unique_ptr<QWidget>& view = m_views[name];
    if (!view)
        view = std::make_unique<QWidget>();
    return view.get();
}

App& Stage::TheApp() {
    if (!m_app)
        Fail(u"the program is not running"_s);
    return *m_app;
}

void Stage::Build() {
    if (m_app && !HasEnded())
        Fail(u"the program is running already"_s);
    DropProgram();
    m_app = std::make_unique<App>(m_machine->ThePlatform());
    m_app->diagnostics.onLine = [this](const QString& text) { play->OnDebugLine(text); };
    dialogs.Attach(*m_app, *this);
}

void Stage::Start() {
    Build();
    m_app->Get<StartUp>().Main();
}

void Stage::DropProgram() {
    if (!m_app)
        return;
    CollectRecords();
    dialogs.Detach();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_app.reset();
    m_machine.reset();
    m_views.clear();
    // The browser's session ends with its process.
    world.web.cookies.Clear();
    world.gate.Mend();
    StartMachine();
}

void Stage::Close() {
    if (!m_app)
        return;
    if (dialogs.IsFormOpen(u"frmMain"_s))
        dialogs.CloseForm(u"frmMain"_s);
    else
        m_app->Close();
}

bool Stage::HasEnded() {
    const SimShell& shell = m_machine->Services().Shell();
    return !m_app || m_app->state.blnClosing || shell.hasQuit || shell.hasEnded;
}

bool Stage::IsIdle() {
    if (HasEnded())
        return true;
    const RunState& state = m_app->state;
    const bool isAtRest =
        state.CurrentAction.isEmpty() && !state.blnBulletinWaiting && !state.blnStatusWaiting;
    const bool nothingDue = ThePump().Queue().NextDueMs().value_or(ThePump().NowMs() + 1) > ThePump().NowMs();
    return isAtRest && nothingDue && !m_machine->AwaitsLoad();
}

void Stage::CollectRecords() {
    for (const BrowserName name : {BrowserName::WebBrowser1, BrowserName::webHide, BrowserName::webTemp}) {
        Records& records = m_records[name];
        records.visited += m_machine->TakeVisited(name);
        for (SimBrowser::Posted& form : m_machine->TakePosted(name))
            records.posted.push_back(std::move(form));
    }
}

QStringList Stage::TakeVisited(BrowserName name) {
    CollectRecords();
    return std::exchange(m_records[name].visited, {});
}

std::optional<SimBrowser::Posted> Stage::TakePosted(BrowserName name) {
    CollectRecords();
    std::deque<SimBrowser::Posted>& posted = m_records[name].posted;
    if (posted.empty())
        return {};
    SimBrowser::Posted form = std::move(posted.front());
    posted.pop_front();
    return form;
}

QString Stage::ProgramFolder() const {
    if (m_app && !m_app->state.ProgramFolder.isEmpty())
        return m_app->state.ProgramFolder;
    return world.gate.IsReadOnly(world.installationFolder) ? DataFolder() : world.installationFolder;
}

QString Stage::DataFolder() const {
    return FileSystem::Join(m_machine->ThePlatform().SpecialFolderPath(LocalApplicationData), FolderOfData);
}

QString Stage::Expand(const QString& text) {
    if (!text.contains(u'{'))
        return text;
    QString expanded = text;
    for (const auto& [name, value] : names)
        expanded.replace(u'{' + name + u'}', value);
    expanded.replace(u"{ProgramFolder}"_s, ProgramFolder());
    expanded.replace(u"{DataFolder}"_s, DataFolder());
    expanded.replace(u"{AccountEmail}"_s, m_app ? m_app->state.AccountEmail : QString());
    return Deployment(world.deploymentText).Expand(expanded);
}

QString Stage::Path(const QString& text) {
    const QString path = Expand(text);
    return QDir::cleanPath(QDir::isAbsolutePath(path) ? path : m_folder.filePath(path));
}

std::vector<QWidget*> Stage::OpenForms() {
    std::vector<QWidget*> forms;
    const QStringList open = dialogs.OpenForms();
    for (auto name = open.rbegin(); name != open.rend(); ++name)
        // A modal form may be off the screen for a while.
        if (QWidget* form = dialogs.FormWidget(*name); !form->isModal() || !form->isHidden())
            forms.push_back(form);
    return forms;
}

std::vector<QWidget*> Stage::ReachableForms() {
    std::vector<QWidget*> forms = OpenForms();
    const auto modal = std::ranges::find_if(forms, &QWidget::isModal);
    if (modal != forms.end())
        forms.erase(modal + 1, forms.end());
    return forms;
}

QWidget* Stage::SeenWidgetOrNull(const QString& name) {
    return WidgetOn(OpenForms(), name);
}

QWidget* Stage::SeenWidget(const QString& name) {
    return Need(SeenWidgetOrNull(name), name, dialogs);
}

QWidget* Stage::Widget(const QString& name) {
    QWidget* widget = Need(WidgetOn(ReachableForms(), name), name, dialogs);
    // Fields tell that they are left only in the active window.
    if (QApplication::activeWindow() != widget->window())
        QApplication::setActiveWindow(widget->window());
    m_machine->Services().Desktop().foreground = widget->window()->objectName();
    return widget;
}

void Stage::DestroyClosedWindows() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QString Stage::UnusedAnswers() const {
    if (!dialogs.answers.empty())
        return u"the answer to \"%1\" was never used"_s.arg(dialogs.answers.front().words);
    if (!dialogs.filesToChoose.isEmpty())
        return u"a file dialog's answer was never used: \"%1\""_s.arg(dialogs.filesToChoose.first());
    if (!world.web.problems.isEmpty())
        return world.web.problems.first();
    return {};
}

QString Stage::Describe() {
    if (!m_app)
        return u"the program is not running"_s;
    const RunState& state = m_app->state;
    return u"status \"%1\", activity \"%2\", steps login %3 gather %4 fr %5, address %6, last message \"%7\""_s
        .arg(m_app->Status(), state.CurrentAction)
        .arg(state.intLoginStep)
        .arg(state.intGatherStep)
        .arg(state.intFRStep)
        .arg(Browser(BrowserName::WebBrowser1).LocationURL(),
             dialogs.messages.empty() ? QString() : dialogs.messages.back().text);
}

QStringList Stage::DebugTrail(int linesEach) const {
    QStringList trail;
    const QDir folder(DataFolder());
    for (const QString& name : folder.entryList({u"debug*.txt"_s, u"Error.log"_s}, QDir::Files, QDir::Name)) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QStringList lines =
            QString::fromLatin1(file.readAll()).remove(u'\r').split(u'\n', Qt::SkipEmptyParts);
        for (const QString& line : lines.mid(std::max<qsizetype>(0, lines.size() - linesEach)))
            trail << name + u": "_s + line.left(300);
    }
    return trail;
}

} // namespace qlm::scenario
