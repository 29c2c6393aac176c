#include "platform/commandline.h"

#include "platform/displaysetup.h"
#include "platform/translations.h"

#include <QCommandLineParser>

#include <cstdio>
#include <vector>

namespace {

constexpr int notUnderstood = 2;

// The application object of the real program takes them; here they have to be known to be told
// from mistakes.
constexpr const char *toolkitSwitches[] = {"dograb", "nograb", "reverse", "widgetcount"};
constexpr const char *toolkitValues[] = {
    "display",         "geometry",           "icon",          "name",
    "platform",        "platformpluginpath", "platformtheme", "plugin",
    "qwindowgeometry", "qwindowicon",        "qwindowtitle",  "session",
    "style",           "stylesheet",         "title",         "visual"};

class CommandLine {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    CommandLine();

    // Reads the arguments. The program's status where they want an answer, now given, and no game.
    std::optional<int> answer(const QStringList &arguments);
    WindowSize size() const { return size_; }
    // 0: none is asked for.
    double factor() const { return factor_; }

private:
    void addToolkitOptions();
    QString mistakeIn(const QStringList &arguments);
    bool readScale(const QString &value);

    QCommandLineParser parser_;
    QCommandLineOption help_;
    QCommandLineOption version_;
    QCommandLineOption scale_;
    WindowSize size_ = WindowSize::Suitable;
    double factor_ = 0;
};

CommandLine::CommandLine()
    : help_({"h", "help"}, tr("Tells the options.")),
      version_({"v", "version"}, tr("Tells the version.")),
      scale_("scale",
             tr("How many times as large as 240 x 320 the window is: a number from 1 to 8 in "
                "quarter steps, such as 2 or 1.75; or \"larger\" or \"smaller\" than by itself."),
             tr("factor")) {
    parser_.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    parser_.setApplicationDescription(
        tr("Draughts against the computer or another person.\n"
           "The options of the Qt toolkit, such as -style and -platform, work as well."));
    parser_.addOptions({help_, version_, scale_});
    addToolkitOptions();
}

void CommandLine::addToolkitOptions() {
    const auto add = [this](const char *name, const char *value) {
        QCommandLineOption option(name, {}, value);
        option.setFlags(QCommandLineOption::HiddenFromHelp);
        parser_.addOption(option);
    };
    for (const char *name : toolkitSwitches)
        add(name, nullptr);
    for (const char *name : toolkitValues)
        add(name, "value");
}

std::optional<int> CommandLine::answer(const QStringList &arguments) {
    const QString mistake = mistakeIn(arguments);
    if (!mistake.isEmpty()) {
        std::fprintf(stderr, "tavlora: %s\n", qPrintable(mistake));
        return notUnderstood;
    }
    if (parser_.isSet(help_))
        std::fputs(qPrintable(parser_.helpText()), stdout);
    else if (parser_.isSet(version_))
        std::puts("tavlora " TAVLORA_VERSION);
    else
        return std::nullopt;
    return 0;
}

QString CommandLine::mistakeIn(const QStringList &arguments) {
    if (!parser_.parse(arguments))
        return parser_.errorText();
    const QStringList others = parser_.positionalArguments();
    if (!others.isEmpty())
        return tr("'%1' is no option; --help tells those there are.").arg(others.first());
    if (parser_.isSet(scale_) && !readScale(parser_.value(scale_)))
        return tr("--scale takes a number from 1 to 8 in quarter steps, \"larger\" or "
                  "\"smaller\", and not '%1'.")
            .arg(parser_.value(scale_));
    return {};
}

bool CommandLine::readScale(const QString &value) {
    if (value == "larger")
        size_ = WindowSize::Larger;
    else if (value == "smaller")
        size_ = WindowSize::Smaller;
    else
        factor_ = value.toDouble();
    return size_ != WindowSize::Suitable || isFormScale(factor_);
}

} // namespace

std::optional<int> obeyCommandLine(int argc, char **argv) {
    if (argc <= 1)
        return std::nullopt;
    WindowSize size = WindowSize::Suitable;
    double factor = 0;
    {
        int count = argc;
        std::vector<char *> copies(argv, argv + argc);
        copies.push_back(nullptr);
        const QCoreApplication speaker(count, copies.data());
        const Translations translations;
        CommandLine line;
        if (const std::optional<int> status = line.answer(QCoreApplication::arguments()))
            return status;
        size = line.size();
        factor = line.factor();
    }
    if (factor != 0)
        chooseFormScale(factor);
    else if (size != WindowSize::Suitable)
        prepareDisplay(argc, argv, size);
    return std::nullopt;
}
