<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CAboutDlg</name>
    <message>
        <source>About Trelio Frame</source>
        <translation>Über Trelio Frame</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>© Tolvan. All rights reserved.</source>
        <translation>© Tolvan. Alle Rechte vorbehalten.</translation>
    </message>
    <message>
        <source>Perspective, horizon and lens corrections for your photos.</source>
        <translation>Korrigiert Perspektive, Horizont und Objektivfehler Ihrer Fotos.</translation>
    </message>
    <message>
        <source>Made with:</source>
        <translation>Entwickelt mit:</translation>
    </message>
    <message>
        <source>Licences on the web</source>
        <translation>Lizenzen im Web</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>CAboutOstraDlg</name>
    <message>
        <source>About the Ostra Collection</source>
        <translation>Über die Ostra Collection</translation>
    </message>
    <message>
        <source>with Trelio Frame %1</source>
        <translation>mit Trelio Frame %1</translation>
    </message>
    <message>
        <source>© Tolvan. All rights reserved.</source>
        <translation>© Tolvan. Alle Rechte vorbehalten.</translation>
    </message>
    <message>
        <source>A family of plug-ins for photographers. Its members share their language and their preferences, so that what you set in one holds in all.</source>
        <translation>Eine Familie von Plug-ins für Fotografen. Ihre Mitglieder teilen sich Sprache und Voreinstellungen: Was Sie in einem einstellen, gilt in allen.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>CLanguageManager</name>
    <message>
        <source>language name</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>ostra language number</source>
        <translation>0</translation>
    </message>
    <message>
        <source>language number</source>
        <translation>1031</translation>
    </message>
</context>
<context>
    <name>CLanguageTest</name>
    <message>
        <source>language name</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>ostra language number</source>
        <translation>0</translation>
    </message>
    <message>
        <source>language number</source>
        <translation>1031</translation>
    </message>
</context>
<context>
    <name>CMessageBox</name>
    <message>
        <source>Dialog</source>
        <translation>Dialog</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>Nicht speichern</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Don&apos;t quit</source>
        <translation>Nicht beenden</translation>
    </message>
    <message>
        <source>Quit without saving</source>
        <translation>Ohne Speichern beenden</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Frage</translation>
    </message>
</context>
<context>
    <name>CProgressBox</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Wird angehalten …</translation>
    </message>
    <message>
        <source>A few seconds left</source>
        <translation>Noch wenige Sekunden</translation>
    </message>
    <message numerus="yes">
        <source>About %n seconds left</source>
        <translation>
            <numerusform>Noch etwa %n Sekunde</numerusform>
            <numerusform>Noch etwa %n Sekunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n minutes left</source>
        <translation>
            <numerusform>Noch etwa %n Minute</numerusform>
            <numerusform>Noch etwa %n Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n hours left</source>
        <translation>
            <numerusform>Noch etwa %n Stunde</numerusform>
            <numerusform>Noch etwa %n Stunden</numerusform>
        </translation>
    </message>
    <message>
        <source>The work could not be completed.</source>
        <translation>Der Vorgang konnte nicht abgeschlossen werden.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Windows small space message on drive %1</source>
        <translation>Trelio Frame kann nicht gestartet werden, da auf dem Laufwerk %1 nicht genügend Speicherplatz frei ist.
Bitte löschen Sie nicht benötigte Dateien von diesem Laufwerk und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Out of memory. Program will be closed.</source>
        <translation>Trelio Frame muss beendet werden, da nicht genügend Arbeitsspeicher verfügbar ist.
Bitte schließen Sie einige andere Programme und versuchen Sie dann, Trelio Frame erneut zu starten.</translation>
    </message>
    <message>
        <source>%1 has run out of memory. The application may now become unstable. Please close %2 and Photoshop, quit all other programs running, and try again.</source>
        <translation>Für %1 ist nicht mehr genügend Arbeitsspeicher verfügbar. Die Anwendung arbeitet jetzt möglicherweise nicht mehr stabil. Bitte schließen Sie %2 und Photoshop, beenden Sie alle anderen laufenden Programme und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Unhandled exception. Program will be closed.</source>
        <translation>Trelio Frame muss wegen eines nicht abgefangenen Ausnahmefehlers beendet werden.</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>KB</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>in</source>
        <translation>in</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
</context>
<context>
    <name>TOLVAN_NAMESPACE::CArchiveJob</name>
    <message>
        <source>not found</source>
        <translation>nicht gefunden</translation>
    </message>
    <message>
        <source>not a file</source>
        <translation>keine Datei</translation>
    </message>
    <message>
        <source>not a zip archive</source>
        <translation>kein ZIP-Archiv</translation>
    </message>
    <message>
        <source>unsupported compression method</source>
        <translation>nicht unterstütztes Kompressionsverfahren</translation>
    </message>
    <message>
        <source>protected by a password</source>
        <translation>durch ein Passwort geschützt</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>beschädigt</translation>
    </message>
    <message>
        <source>name not allowed</source>
        <translation>Name nicht erlaubt</translation>
    </message>
    <message>
        <source>leads out of the folder</source>
        <translation>führt aus dem Ordner heraus</translation>
    </message>
    <message>
        <source>shares data with another entry</source>
        <translation>teilt Daten mit einem anderen Eintrag</translation>
    </message>
    <message>
        <source>too large</source>
        <translation>zu groß</translation>
    </message>
    <message>
        <source>not enough disk space</source>
        <translation>nicht genug Speicherplatz</translation>
    </message>
    <message>
        <source>access denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>name used by a folder or a link</source>
        <translation>Name durch einen Ordner oder eine Verknüpfung belegt</translation>
    </message>
    <message>
        <source>changed while it was read</source>
        <translation>während des Lesens verändert</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>nicht lesbar</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>nicht beschreibbar</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>Stopped after %1 of %2 entries (%3).</source>
        <translation>Abgebrochen nach %1 von %2 Einträgen (%3).</translation>
    </message>
    <message>
        <source>Checked %1 of %2 entries (%3).</source>
        <translation>%1 von %2 Einträgen geprüft (%3).</translation>
    </message>
    <message>
        <source>Packed %1 of %2 entries (%3).</source>
        <translation>%1 von %2 Einträgen gepackt (%3).</translation>
    </message>
    <message>
        <source>Unpacked %1 of %2 entries (%3).</source>
        <translation>%1 von %2 Einträgen entpackt (%3).</translation>
    </message>
    <message>
        <source>Checked %1 of %2 entries (%3). %4: %5.</source>
        <translation>%1 von %2 Einträgen geprüft (%3). %4: %5.</translation>
    </message>
    <message>
        <source>Packed %1 of %2 entries (%3). %4: %5.</source>
        <translation>%1 von %2 Einträgen gepackt (%3). %4: %5.</translation>
    </message>
    <message>
        <source>Unpacked %1 of %2 entries (%3). %4: %5.</source>
        <translation>%1 von %2 Einträgen entpackt (%3). %4: %5.</translation>
    </message>
</context>
</TS>
