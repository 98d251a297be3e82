#pragma once

#include <QVector>

class QWidget;
class Report;

/// One page of the showcase: a subsystem of the library in the window and on the console.
struct Page {
    const char* name;    ///< of its picture, and how settings know it: lower case, no blanks
    const char* title;   ///< its entry in the list and its heading; English, of the context "Pages"
    const char* summary; ///< the sentence below the heading; English, of the context "Pages"
    /// Makes the page, which the parent owns. The window shows heading and summary itself, so a page begins
    /// with its content, without margins. A page renews its own texts (see PageWidget) and needs neither a
    /// display nor a network to be built; slow work starts when the user asks for it.
    QWidget* (*make)(QWidget* parent);
    const char* icon = "";           ///< its icon in the list, below ":/icons/"
    const char* source = "";         ///< the source file whose marked lines the page can show
    void (*walk)(Report&) = nullptr; ///< takes its steps on the console; null for what needs a screen
    bool fillsWindow = false;        ///< the code is shown when asked for only
};

/// All pages, in the order of the list.
QVector<Page> pages();

// Each page stands in one source file, with its walk for the console.
QWidget* makeWorkplace(QWidget* parent);
QWidget* makeLoggingPage(QWidget* parent);
QWidget* makeSettingsPage(QWidget* parent);
QWidget* makeStoragePage(QWidget* parent);
QWidget* makeLanguagesPage(QWidget* parent);
QWidget* makeAsyncPage(QWidget* parent);
QWidget* makeMessageBoxPage(QWidget* parent);
QWidget* makeStatePage(QWidget* parent);
QWidget* makeResourcesPage(QWidget* parent);
QWidget* makeFatalPage(QWidget* parent);
QWidget* makeStylePage(QWidget* parent);
QWidget* makeWebServicePage(QWidget* parent);
QWidget* makeFilesPage(QWidget* parent);

void walkWorkplace(Report& report);
void walkLogging(Report& report);
void walkSettings(Report& report);
void walkStorage(Report& report);
void walkLanguages(Report& report);
void walkAsync(Report& report);
void walkState(Report& report);
void walkResources(Report& report);
void walkWebService(Report& report);
void walkFiles(Report& report);
