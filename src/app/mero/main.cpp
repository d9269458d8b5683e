// SPDX-License-Identifier: MIT
// mero: the program with its window.
// With --script a script drives the same widgets, and the trace goes to standard output.
#include <QApplication>
#include <QFontMetrics>
#include <QLibraryInfo>
#include <QMessageBox>
#include <QSocketNotifier>
#include <QTimer>
#include <QTranslator>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/common/end_signals.h"
#include "app/common/options.h"
#include "app/common/program_folder.h"
#include "app/common/standard_streams.h"
#include "app/keeping/user_folders.h"
#include "app/mero/pdf_file.h"
#include "app/mero/project_commands.h"
#include "app/mero/qt_desk.h"
#include "app/mero/qt_user.h"
#include "app/mero/script_feed.h"
#include "app/mero/window_icon.h"
#include "app/mero/window_place.h"
#include "automation/script_runner.h"
#include "automation/trace_desk.h"
#include "data/rain_database.h"
#include "forms/calc/layout/calc_window.h"
#include "forms/calc/program.h"
#include "forms/keeping/project_work.h"
#include "platform/files/bounded_read.h"
#include "platform/files/leftovers.h"
#include "platform/files/same_file.h"
#include "platform/files/whole_file.h"
#include "platform/locale_settings.h"
#include "platform/numbers/numeric_locale.h"
#include "qt/palettes.h"
#include "qt/program_style.h"
#include "qt/texts.h"
#include "report/view_html.h"

namespace {

using namespace mero;

constexpr int kUnusable = 2;
constexpr int kClockPeriodMs = 1000;

constexpr const char* kHelp =
    "usage: mero [--folder DIR] [--clock 2026-11-20T14:05:09] [--palette light|dark] [PROJECT]\n"
    "       mero [--folder DIR] [--clock 2026-11-20T14:05:09] [--palette light|dark] --script SCRIPT\n"
    "       mero --export-pdf REPORT FILE [NOTE]\n"
    "\n"
    "Design of stormwater infiltration facilities.\n"
    "\n"
    "  PROJECT           a project file to open (*.mero.json, *.json)\n"
    "  --folder DIR      the program's folder: mero.mdb, Webs, the report file\n"
    "  --clock TIME      freezes date and time\n"
    "  --palette light|dark\n"
    "                    the window's colours, whatever the desktop's are\n"
    "  --script SCRIPT   works the window from a script (a UTF-8 file, - for standard input), prints the\n"
    "                    trace, one JSON object per line, and exits when the script ends\n"
    "  --export-pdf REPORT FILE [NOTE]\n"
    "                    makes a PDF file of a report file, with the note at the foot of its pages, without\n"
    "                    a window; for mero-batch\n"
    "  --help            this text\n"
    "  --version         the version\n"
    "\n"
    "Exit status: 0 ordinary end, 1 a run-time error ended the program, the trace could not be written or "
    "the PDF\n"
    "file was not made, 2 unusable script or arguments.\n";

std::string readScript(const std::string& path) {
    platform::FileContent script = platform::readTextFile(path);
    if (script.failure != platform::ReadFailure::None) {
        throw app::UsageError("cannot read the script " + path + platform::detailOf(script.failure));
    }
    return std::move(script.bytes);
}

/// The window system's own texts (context menus, file dialogs) in the program's language, where installed.
void translateSystemTexts(QTranslator& translator) {
    if (translator.load(QStringLiteral("qtbase_cs"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(&translator);
    }
}

/// The running program with its window.
class Mero {
  public:
    Mero(const app::RunOptions& options, std::string script, const app::EndSignals& end_signals)
        : scripted_(!options.script.empty()),
          script_name_(options.script),
          script_(std::move(script)),
          project_(options.project),
          folder_(app::folderOrDefault(options.folder)),
          real_desk_(scripted_ ? app::Sitter::Script : app::Sitter::Person, report::viewHtml),
          trace_desk_(std::cout, &real_desk_, folder_),
          clock_(options.frozen_moment ? std::unique_ptr<platform::Clock>(
                                             std::make_unique<platform::FrozenClock>(*options.frozen_moment))
                                       : std::make_unique<platform::SystemClock>()),
          program_({desk(), *clock_, locale_, rain_database_, folder_}),
          kit_([this](const std::function<void()>& event) { program_.enter(event); },
               scripted_ ? qt::FocusEvents::RunNothing : qt::FocusEvents::RunHandlers),
          window_(kit_, program_.window(),
                  {report::viewHtml, [this](const std::string& address) { desk().openAddress(address); }}),
          commands_({program_, kit_, window_, real_desk_, rain_database_, MERO_VERSION}) {
        window_.setMenus(commands_.menus());
        if (!scripted_) {
            window_.place = [](QWidget& window) {
                const auto place = app::readPreferences(app::preferencesFile()).place;
                return place && app::takePlace(window, *place);
            };
        }
        real_desk_.setMainWindow(&window_);
        real_desk_.message_closed = [this](const platform::Message& message) {
            window_.returnToField(message);
        };
        app::tellBesideFields(real_desk_, kit_.typing());
        real_desk_.file_saved = [this](const std::string& path) { window_.tellSaved(path); };
        program_.on_ended = [this] {
            if (work_) {
                commands_.files().finish();
            }
            QApplication::exit(program_.exitStatus());
        };
        if (end_signals.descriptor() >= 0) {
            auto* request = new QSocketNotifier(end_signals.descriptor(), QSocketNotifier::Read, &window_);
            QObject::connect(request, &QSocketNotifier::activated, &window_, [this, request] {
                request->setEnabled(false);
                program_.close();
            });
        }
    }

    int run() {
        program_.start();
        if (program_.ended()) {
            return program_.exitStatus();
        }
        begin();
        tellOfMissingFolder();
        return scripted_ ? runScript() : runForPerson();
    }

  private:
    /// With a script nothing is kept between runs.
    void begin() {
        const app::KeepingPlaces places =
            scripted_ ? app::KeepingPlaces{}
                      : app::KeepingPlaces{app::preferencesFile(), app::recoveryFolder()};
        commands_.begin(work_.emplace(program_, forms::ProjectSource{rain_database_, folder_}), places);
        if (scripted_) {
            return;
        }
        qt::later(window_, [this] {
            commands_.files().offerLost();
            if (!project_.empty()) {
                commands_.files().open(qt::shown(project_));
            }
        });
    }

    platform::Desk& desk() {
        return scripted_ ? static_cast<platform::Desk&>(trace_desk_)
                         : static_cast<platform::Desk&>(real_desk_);
    }

    /// Reported at the start, so that nobody works for an hour and then gets no report.
    void tellOfMissingFolder() {
        if (app::folderExists(folder_)) {
            return;
        }
        std::cerr << "mero: " << app::folderMissing(folder_) << '\n';
        if (!scripted_) {
            qt::later(window_, [this] {
                real_desk_.showMessage({"Složku programu „" + folder_ +
                                            "“ nelze vytvořit. Bez ní chybí databáze dešťů a výsledky se "
                                            "nezobrazí.",
                                        platform::MessageIcon::Exclamation});
            });
        }
    }

    int runForPerson() {
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &window_,
                         [this] { program_.enter([this] { program_.window().Timer1_Timer(); }); });
        timer.start(kClockPeriodMs);
        return QApplication::exec();
    }

    int runScript() {
        app::QtUser user(program_, kit_);
        automation::ScriptRunner runner(program_, user, trace_desk_, std::cerr, script_name_);
        runner.workOn(*work_);
        app::ScriptFeed feed(runner, [](int exit_status) { QApplication::exit(exit_status); });
        qt::later(feed,
                  [this, &feed] { script_name_ == "-" ? feed.feedStandardInput() : feed.feedAll(script_); });
        const int status = QApplication::exec();
        return std::cout ? status : app::traceFailed("mero");
    }

    bool scripted_;
    std::string script_name_;
    std::string script_;
    std::string project_;
    std::string folder_;
    app::QtDesk real_desk_;
    automation::TraceDesk trace_desk_;
    std::unique_ptr<platform::Clock> clock_;
    platform::ProgramLocale locale_;
    data::MdbRainDatabase rain_database_;
    forms::Program program_;
    qt::WidgetKit kit_;
    forms::CalcWindow window_;
    // Made when the window is open; the commands use it to their end.
    std::optional<forms::ProjectWork> work_;
    app::ProjectCommands commands_;
};

void tellOfNoFolder() {
    QMessageBox box(
        QMessageBox::Critical, QString::fromLatin1(platform::kApplicationTitle),
        QStringLiteral("Není složka pro databázi dešťů a výsledky, protože proměnná prostředí HOME "
                       "není nastavena na úplnou cestu. Nastavte ji, nebo program spusťte s "
                       "volbou --folder SLOŽKA."));
    box.setObjectName(QStringLiteral("message"));
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

/// Needs no display on any desktop.
int exportPdf(int& argc, char** argv, const std::string& report, const std::string& file,
              const std::string& note) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    numbers::useNumericCLocale();
    const auto make = [&](const std::string& path) {
        return app::makePdfFile(report, path, report::viewHtml, note) == platform::PdfResult::Made;
    };
    if (platform::isSameFile(report, file)) {
        return 1;
    }
    // Another program's temporary file is put in its place by that program.
    const bool temporary = platform::isTemporaryName(file.substr(file.rfind('/') + 1));
    return (temporary ? make(file) : platform::replaceWhole(file, make)) ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        app::holdStandardStreams();
        const std::vector<std::string_view> arguments(argv + 1, argv + argc);
        // All arguments belong to this program; Qt gets none of them.
        int window_system_arguments = 1;
        if (!arguments.empty() && arguments.front() == "--export-pdf") {
            if (arguments.size() != 3 && arguments.size() != 4) {
                throw app::UsageError("--export-pdf needs a report file and the file to make");
            }
            return exportPdf(window_system_arguments, argv, std::string(arguments[1]),
                             std::string(arguments[2]),
                             std::string(arguments.size() == 4 ? arguments[3] : ""));
        }
        const app::RunOptions options = app::parseRunOptions(arguments, app::ScriptArgument::WithOption);
        if (options.help || options.version) {
            std::cout << (options.help ? kHelp : "mero " MERO_VERSION "\n");
            return 0;
        }
        std::string script;
        if (!options.script.empty() && options.script != "-") {
            script = readScript(options.script);
        }
        QApplication application(window_system_arguments, argv);
        numbers::useNumericCLocale();
        qt::useProgramStyle();
        if (options.palette == app::Palette::System) {
            qt::useOwnColoursWhereDesktopHasNone();
        } else {
            QApplication::setPalette(options.palette == app::Palette::Dark ? qt::darkPalette()
                                                                           : qt::lightPalette());
        }
        if (!QFontMetrics(QApplication::font()).inFont(QLatin1Char('A'))) {
            std::cerr
                << "mero: there is no font on this machine: the window shows boxes in place of letters\n";
        }
        QTranslator translator;
        translateSystemTexts(translator);
        QApplication::setQuitOnLastWindowClosed(false);
        app::wearIcon();
        const app::EndSignals end_signals;
        int status = 0;
        try {
            status = Mero(options, std::move(script), end_signals).run();
        } catch (const app::NoFolderError&) {
            if (options.script.empty()) {
                tellOfNoFolder();
            }
            throw;
        }
        end_signals.passOn();
        return status;
    } catch (const app::UsageError& error) {
        std::cerr << "mero: " << error.what() << '\n';
        return kUnusable;
    }
}
