#pragma once

#include <QtCore/QProcess>
#include <QtCore/QProcessEnvironment>
#include <QtCore/QStringList>

/// One run of the workstation's own program, without a display and with a home of its own.
struct WorkstationRun
{
    bool hasCrashed = false;
    int exitCode = -1;
    QString out;
    QString complaints; // standard error

    static WorkstationRun with(const QString &home, const QStringList &flags)
    {
        constexpr int mostMs = 240000;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
            environment.insert(QLatin1String(name), home);
        environment.remove(QStringLiteral("QT_LOGGING_RULES")); // it chooses its own when nobody asks
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(ZR_WORKSTATION),
                      QStringList{QStringLiteral("--lang"), QStringLiteral("en")} + flags);
        WorkstationRun run;
        if (!process.waitForFinished(mostMs)) {
            process.kill();
            process.waitForFinished();
        }
        run.hasCrashed = process.exitStatus() == QProcess::CrashExit;
        run.exitCode = run.hasCrashed ? -1 : process.exitCode();
        run.out = QString::fromLocal8Bit(process.readAllStandardOutput());
        run.complaints = QString::fromLocal8Bit(process.readAllStandardError());
        return run;
    }

    /// Long enough to load, show and end.
    static QStringList shortRun()
    {
        return {QStringLiteral("--headless"), QStringLiteral("--seconds"), QStringLiteral("0.1"),
                QStringLiteral("--rate"), QStringLiteral("10")};
    }
};
