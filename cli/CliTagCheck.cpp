#include "CliTagCheck.h"

#include "CliOutput.h"
#include "framework/MTETagReport.h"

#include <QCoreApplication>
#include <QFileInfo>

int CliTagCheck::print(const QString& source, const QString& output) {
    for (const QString& path : {source, output}) {
        if (!QFileInfo(path).isFile()) {
            CliOutput::line(
                stderr, QCoreApplication::translate("CliTagCheck", "sonoria-cli: %1: no such file")
                            .arg(path));
            return 1;
        }
    }
    const MTETagReport report = MTETagReport::compare(source, output);
    for (const MTETagReport::Entry& entry : report.kept)
        CliOutput::line(stdout, QCoreApplication::translate("CliTagCheck", "kept     %1")
                                    .arg(MTETagReport::fieldName(entry.field)));
    for (const MTETagReport::Entry& entry : report.changed)
        CliOutput::line(stdout, QCoreApplication::translate("CliTagCheck", "changed  %1: %2")
                                    .arg(MTETagReport::fieldName(entry.field), entry.reason));
    for (const MTETagReport::Entry& entry : report.dropped)
        CliOutput::line(stdout, QCoreApplication::translate("CliTagCheck", "lost     %1: %2")
                                    .arg(MTETagReport::fieldName(entry.field), entry.reason));
    if (report.isEmpty())
        CliOutput::line(stdout,
                        QCoreApplication::translate("CliTagCheck", "The source carries no tags."));
    return report.lostAnything() ? 1 : 0;
}
