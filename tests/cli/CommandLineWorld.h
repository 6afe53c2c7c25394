#pragma once
#include "tests/support/TestPhotos.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <gtest/gtest.h>

/// What a run of the program gave.
struct Result {
    int status = -1;
    std::string output, errors;
    const QJsonValue json() const {
        return QJsonDocument::fromJson(QByteArray::fromStdString(output)).object();
    }
};

/// The real program, run in a folder of its own with a configuration of its own.
class CommandLineWorld : public testing::Test {
protected:
    void prepare(QProcess& process, const QStringList& arguments) const {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", folder.path().c_str());
        environment.remove("XDG_CONFIG_HOME");
        environment.remove("XDG_DATA_HOME");
        environment.remove("XDG_STATE_HOME");
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder.path().c_str());
        process.setProgram(WAYMARK_CLI);
        process.setArguments(arguments);
    }

    Result run(const QStringList& arguments) const {
        QProcess process;
        prepare(process, arguments);
        process.start();
        process.waitForFinished(120000);
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                process.readAllStandardOutput().toStdString(), process.readAllStandardError().toStdString()};
    }

    QStringList geotagDemo(const QStringList& more = {}) const {
        return QStringList{"--json",        "--library",   ":memory:", "geotag",     "--track",
                           "trip/walk.gpx", "--time-zone", "+02:00",   "trip/photos"} +
               more;
    }

    TemporaryFolder folder;
};
