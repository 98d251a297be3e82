#pragma once

#include "PageWidget.h"

class QLabel;
class QLineEdit;
namespace TOLVAN_NAMESPACE
{
struct ArchiveTask;
}

/// File names checked and paths compared while they are typed, a folder packed and unpacked, files shown and
/// thrown away.
class FilesPage : public PageWidget
{
    Q_OBJECT

public:
    explicit FilesPage(QWidget* parent);

    void prepareForPicture() override;

protected:
    void languageChanged() override;

private:
    void addNames();
    void addArchive();
    void checkName();
    void comparePaths();
    void chooseFolder();
    void runJob(const TOLVAN_NAMESPACE::ArchiveTask& task, const QString& title);
    QString archivePath() const;

    QLineEdit* m_name = nullptr;
    QLabel* m_asName = nullptr;
    QLabel* m_asPath = nullptr;
    QLineEdit* m_firstPath = nullptr;
    QLineEdit* m_secondPath = nullptr;
    QLabel* m_whole = nullptr;
    QLabel* m_withoutSuffix = nullptr;
    QLabel* m_sizes = nullptr;
    QLineEdit* m_folder = nullptr;
};
