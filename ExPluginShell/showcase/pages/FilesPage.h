#pragma once

#include "PageWidget.h"

#include <memory>

class FileWork;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;

/// File names checked and paths compared while they are typed, a folder packed and unpacked with a bar, files
/// shown and thrown away.
class FilesPage : public PageWidget
{
    Q_OBJECT

public:
    explicit FilesPage(QWidget* parent);
    ~FilesPage() override;

protected:
    void languageChanged() override;

private Q_SLOTS:
    void checkName();
    void comparePaths();
    void workEnded();

private:
    void addNames();
    void addArchive();
    void addFolderButtons();
    void chooseFolder();
    void start(bool pack);
    void trashArchive();
    QString archivePath() const;
    QString unpackedPath() const;

    QLineEdit* m_name = nullptr;
    QLabel* m_verdict = nullptr;
    QLineEdit* m_firstPath = nullptr;
    QLineEdit* m_secondPath = nullptr;
    QLabel* m_comparison = nullptr;
    QLabel* m_sizes = nullptr;
    QLineEdit* m_folder = nullptr;
    QProgressBar* m_bar = nullptr;
    QLabel* m_result = nullptr;
    QPushButton* m_cancel = nullptr;
    std::unique_ptr<FileWork> m_work;
    bool m_packing = false;
};
