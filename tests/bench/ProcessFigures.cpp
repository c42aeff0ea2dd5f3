// SPDX-License-Identifier: MIT
#include "ProcessFigures.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <unistd.h>

namespace qlm {

namespace {

using namespace Qt::Literals::StringLiterals;

struct Process {
    QString name;
    int parent = 0;
    double ticks = 0;
};

QByteArray ReadProc(int process, const char* file) {
    QFile source(u"/proc/%1/%2"_s.arg(process).arg(QLatin1StringView(file)));
    return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
}

// The name stands in brackets and may hold anything; the numbers are counted after it.
Process ReadProcess(int number) {
    const QByteArray stat = ReadProc(number, "stat");
    const qsizetype open = stat.indexOf('('), close = stat.lastIndexOf(')');
    const QList<QByteArray> fields = stat.mid(close + 2).split(' ');
    constexpr int parentField = 1, firstTimeField = 11, timeFields = 4;
    Process process{QString::fromUtf8(stat.mid(open + 1, close - open - 1)),
                    fields.value(parentField).toInt()};
    for (int i = 0; i < timeFields; ++i)
        process.ticks += fields.value(firstTimeField + i).toDouble();
    return process;
}

double InMb(const QByteArray& rollup, const QByteArray& field) {
    for (const QByteArray& line : rollup.split('\n'))
        if (line.startsWith(field + ':'))
            return line.mid(field.size() + 1).trimmed().split(' ').value(0).toDouble() / 1024;
    return 0;
}

} // namespace

ProgramFigures FiguresOfProgram(const QString& without) {
    QHash<int, Process> all;
    for (const QString& entry : QDir(u"/proc"_s).entryList(QDir::Dirs))
        if (const int number = entry.toInt(); number > 0)
            all.insert(number, ReadProcess(number));
    ProgramFigures figures;
    QList<int> family{static_cast<int>(::getpid())};
    for (qsizetype i = 0; i < family.size(); ++i) {
        const QByteArray rollup = ReadProc(family[i], "smaps_rollup");
        figures.memoryMb += InMb(rollup, "Pss");
        figures.writtenMb += InMb(rollup, "Pss_Anon") + InMb(rollup, "Pss_Shmem");
        figures.processorMs +=
            all.value(family[i]).ticks * 1000 / static_cast<double>(::sysconf(_SC_CLK_TCK));
        for (auto process = all.cbegin(); process != all.cend(); ++process)
            if (process->parent == family[i] && !without.startsWith(process->name))
                family.append(process.key());
    }
    figures.processes = static_cast<int>(family.size());
    return figures;
}

} // namespace qlm
