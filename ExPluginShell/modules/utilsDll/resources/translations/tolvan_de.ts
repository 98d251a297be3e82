<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
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
</TS>
