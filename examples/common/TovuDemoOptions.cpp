#include "TovuDemoOptions.h"

#include <charconv>
#include <string>

namespace {

std::expected<std::uint16_t, QString> portNumber(const QString &text)
{
    const std::string digits = text.toStdString();
    unsigned value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (digits.empty() || error != std::errc() || end != digits.data() + digits.size() || value > 65535)
        return std::unexpected(QStringLiteral("--port: \"%1\" is not a port number (0 to 65535)").arg(text));
    return static_cast<std::uint16_t>(value);
}

} // namespace

std::expected<TovuDemoOptions, QString> TovuDemoOptions::parse(const QStringList &arguments, const QString &program)
{
    TovuDemoOptions options;
    options.qtArguments << program;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString &argument = arguments[i];
        if (argument == u"-h" || argument == u"--help") {
            options.help = true;
            continue;
        }
        if (!argument.startsWith(u"--")) {
            if (!argument.startsWith(u'-') || argument.size() < 2)
                return std::unexpected(QStringLiteral("unexpected argument \"%1\" (see --help)").arg(argument));
            // Qt's own options, such as -platform xcb: the application object takes them.
            options.qtArguments << argument;
            if (i + 1 < arguments.size() && !arguments[i + 1].startsWith(u'-'))
                options.qtArguments << arguments[++i];
            continue;
        }
        QString name = argument;
        QString value;
        bool hasValue = false;
        if (const qsizetype equals = argument.indexOf(u'='); equals > 0) {
            name = argument.left(equals);
            value = argument.mid(equals + 1);
            hasValue = true;
        }
        const auto flag = [&](bool &target) -> std::expected<void, QString> {
            if (hasValue)
                return std::unexpected(QStringLiteral("%1 takes no value").arg(name));
            target = true;
            return {};
        };
        const auto takeValue = [&]() -> std::expected<QString, QString> {
            if (hasValue)
                return value;
            if (i + 1 >= arguments.size())
                return std::unexpected(QStringLiteral("%1 needs a value").arg(name));
            return arguments[++i];
        };

        std::expected<void, QString> result;
        if (name == u"--autoplay") {
            result = flag(options.autoplay);
        } else if (name == u"--offline-first") {
            result = flag(options.offlineFirst);
        } else if (name == u"--dark") {
            result = flag(options.dark);
        } else if (name == u"--progress") {
            result = flag(options.progress);
        } else if (name == u"--verbose") {
            result = flag(options.verbose);
        } else if (name == u"--palette-png") {
            result = flag(options.paletteScreenshots);
        } else if (name == u"--survey" || name == u"--screenshots" || name == u"--theme" || name == u"--port") {
            const auto text = takeValue();
            if (!text)
                return std::unexpected(text.error());
            if (text->isEmpty())
                return std::unexpected(QStringLiteral("%1 needs a value").arg(name));
            if (name == u"--survey") {
                options.survey = *text;
            } else if (name == u"--screenshots") {
                options.screenshotsDir = *text;
            } else if (name == u"--port") {
                const auto port = portNumber(*text);
                if (!port)
                    return std::unexpected(port.error());
                options.port = *port;
            } else if (*text == u"host") {
                options.theme = Theme::host;
            } else if (*text == u"survey" || *text == u"none") {
                options.theme = Theme::survey;
            } else if (text->startsWith(u'#') && QColor::isValidColorName(*text)) {
                options.theme = Theme::primaryColor;
                options.primaryColor = QColor::fromString(*text);
            } else {
                return std::unexpected(
                    QStringLiteral("--theme: \"%1\" is not host, survey or a colour such as #7C3AED").arg(*text));
            }
        } else {
            return std::unexpected(QStringLiteral("unknown option %1 (see --help)").arg(name));
        }
        if (!result)
            return std::unexpected(result.error());
    }
    return options;
}

QString TovuDemoOptions::usage(const QString &program)
{
    const QString indent(program.size() + 8, u' ');
    return QStringLiteral("usage: %1 [--autoplay] [--survey ID] [--screenshots DIR] [--palette-png] [--offline-first]\n"
                          "%2[--dark] [--theme host|survey|#RRGGBB] [--progress] [--port N] [--verbose]\n")
               .arg(program, indent)
        + QStringLiteral("A host app that shows TovuKit's native surveys, against tovu-devserver started in-process.\n"
                         "  --autoplay         answer every page by itself, save a screenshot of each, print the\n"
                         "                     response the backend stored, and exit (the default without a display)\n"
                         "  --survey ID        the sample to show: file name without .json, survey id or collector id\n"
                         "                     (default: every-question-type)\n"
                         "  --screenshots DIR  where autoplay saves its PNGs (default: demo-screenshots)\n"
                         "  --palette-png      save them with 256 colours, about a third of the size\n"
                         "  --offline-first    submit while offline, come back online and let the queue flush\n"
                         "  --dark             dark appearance\n"
                         "  --theme T          host: the demo app's own theme; #RRGGBB: only the primary colour;\n"
                         "                     survey: the survey's theme and the platform look (default)\n"
                         "  --progress         show which question of how many is on screen (\"3 of 7\")\n"
                         "  --port N           port of the local backend (default 0: a free one)\n"
                         "  --verbose          also print the library's console lines\n");
}

bool TovuDemoOptions::isHeadless()
{
    const QString platform = qEnvironmentVariable("QT_QPA_PLATFORM");
    if (!platform.isEmpty())
        return platform.startsWith(u"offscreen") || platform.startsWith(u"minimal");
#if defined(Q_OS_LINUX) && !defined(Q_OS_ANDROID)
    return qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
#else
    return false;
#endif
}
