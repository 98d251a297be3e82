#pragma once

#include <QObject>
#include <QTranslator>

/// Keeps the showcase's own texts in the language of the library's language manager. The library carries only
/// its own texts and Qt's, so each host brings a catalogue of its own and follows the manager.
class OwnTexts : public QObject
{
    Q_OBJECT

public:
    /// Installs the catalogue of the current language and follows every change.
    explicit OwnTexts(QObject* parent);

private Q_SLOTS:
    void follow();

private:
    QTranslator m_translator;
};
