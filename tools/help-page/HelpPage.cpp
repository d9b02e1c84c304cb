// Makes the help page the program opens from Help ▸ Sonoria Help: the "Using Sonoria" section of
// the README as a small HTML page. Run by the build; the page is staged and installed with the
// other resources, so it is there after `cmake --install` without a network.
//
//   sonoria-help-page README.md OUTPUT.html

#include <QFile>
#include <QRegularExpression>
#include <QStringList>

#include <cstdio>

namespace {

const QString kSection = QStringLiteral("## Using Sonoria");

// The inline marks the section uses: `code`, **strong** and *emphasis*, after escaping.
QString inlineHtml(const QString& text) {
    QString html = text.toHtmlEscaped();
    html.replace(QRegularExpression(QStringLiteral("`([^`]+)`")),
                 QStringLiteral("<code>\\1</code>"));
    html.replace(QRegularExpression(QStringLiteral("\\*\\*([^*]+)\\*\\*")),
                 QStringLiteral("<strong>\\1</strong>"));
    html.replace(QRegularExpression(QStringLiteral("\\*([^*]+)\\*")),
                 QStringLiteral("<em>\\1</em>"));
    return html;
}

// Bullets ("- " starting an item, indented lines continuing it) and paragraphs.
QString bodyHtml(const QStringList& lines) {
    QString html;
    QString item;
    bool inList = false;
    const auto flush = [&] {
        if (!item.isEmpty())
            html += (inList ? QStringLiteral("<li>%1</li>\n") : QStringLiteral("<p>%1</p>\n"))
                        .arg(inlineHtml(item.trimmed()));
        item.clear();
    };
    for (const QString& line : lines) {
        if (line.startsWith(QStringLiteral("- "))) {
            flush();
            if (!inList)
                html += QStringLiteral("<ul>\n");
            inList = true;
            item = line.mid(2);
        } else if (line.trimmed().isEmpty()) {
            flush();
            if (inList)
                html += QStringLiteral("</ul>\n");
            inList = false;
        } else {
            item += QLatin1Char(' ') + line.trimmed();
        }
    }
    flush();
    if (inList)
        html += QStringLiteral("</ul>\n");
    return html;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: sonoria-help-page README.md OUTPUT.html\n");
        return 2;
    }
    QFile readme(QString::fromLocal8Bit(argv[1]));
    if (!readme.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "sonoria-help-page: cannot read %s\n", argv[1]);
        return 1;
    }
    const QStringList all = QString::fromUtf8(readme.readAll()).split(QLatin1Char('\n'));
    const qsizetype start = all.indexOf(kSection);
    if (start < 0) {
        std::fprintf(stderr, "sonoria-help-page: no \"%s\" section\n", qPrintable(kSection));
        return 1;
    }
    qsizetype end = start + 1;
    while (end < all.size() && !all.at(end).startsWith(QStringLiteral("#")))
        ++end;

    const QString page =
        QStringLiteral("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
                       "<title>Sonoria Help</title>\n<style>body{font-family:sans-serif;"
                       "max-width:46em;margin:2em auto;line-height:1.45}li{margin:.5em 0}"
                       "</style>\n</head>\n<body>\n<h1>Using Sonoria</h1>\n") +
        bodyHtml(all.mid(start + 1, end - start - 1)) +
        QStringLiteral("<p>See also the manual pages <code>sonoria(1)</code> and "
                       "<code>sonoria-cli(1)</code>.</p>\n</body>\n</html>\n");
    QFile out(QString::fromLocal8Bit(argv[2]));
    if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate) || out.write(page.toUtf8()) < 0) {
        std::fprintf(stderr, "sonoria-help-page: cannot write %s\n", argv[2]);
        return 1;
    }
    return 0;
}
