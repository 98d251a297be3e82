#pragma once

#include <QVector>

class Report;

/// One subsystem of the library as the showcase presents it on the console.
struct Section {
    const char* title;
    void (*run)(Report& report);
};

/// All sections, in the order in which a host meets the subsystems.
QVector<Section> sections();

void showLogging(Report& report);
void showStorage(Report& report);
void showSettings(Report& report);
void showState(Report& report);
void showBundles(Report& report);
void showLanguages(Report& report);
void showWebService(Report& report);
void showAsync(Report& report);
void showFiles(Report& report);
void showWorkplace(Report& report);
