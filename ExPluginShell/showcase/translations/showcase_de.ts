<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>StylePage</name>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Hover</source>
        <translation>Maus darüber</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>Gedrückt</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Fokus</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiviert</translation>
    </message>
    <message>
        <source>Push buttons</source>
        <translation>Schaltflächen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>Flach</translation>
    </message>
    <message>
        <source>Other buttons</source>
        <translation>Weitere Schaltflächen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>A tool tip explains in one sentence.</source>
        <translation>Ein Tooltip erklärt in einem Satz.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Correct automatically</source>
        <translation>Automatisch korrigieren</translation>
    </message>
    <message>
        <source>Check boxes and radio buttons</source>
        <translation>Kontrollkästchen und Optionsfelder</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Partly</source>
        <translation>Teils</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Old harbour at dusk</source>
        <translation>Alter Hafen im Abendlicht</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Name of the place</source>
        <translation>Name des Ortes</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Kennwort</translation>
    </message>
    <message>
        <source>Can be read only</source>
        <translation>Kann nur gelesen werden</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Cannot be changed</source>
        <translation>Kann nicht geändert werden</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Choices and numbers</source>
        <translation>Auswahl und Zahlen</translation>
    </message>
    <message>
        <source>Ranges and progress</source>
        <translation>Bereiche und Fortschritt</translation>
    </message>
    <message>
        <source>Lenses</source>
        <translation>Objektive</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Metadaten</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objektiv</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>Brennweite</translation>
    </message>
    <message>
        <source>Aperture</source>
        <translation>Blende</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Keystoning</source>
        <translation>Stürzende Linien</translation>
    </message>
    <message>
        <source>Horizon</source>
        <translation>Horizont</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Zuschneiden</translation>
    </message>
    <message>
        <source>Distortion</source>
        <translation>Verzeichnung</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>Guides</source>
        <translation>Hilfslinien</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Loupe</source>
        <translation>Lupe</translation>
    </message>
    <message>
        <source>Straight lines stay straight, and the tower stops leaning backwards.</source>
        <translation>Gerade Linien bleiben gerade, und der Turm kippt nicht länger nach hinten.</translation>
    </message>
    <message>
        <source>Tilt-shift</source>
        <translation>Tilt-Shift</translation>
    </message>
    <message>
        <source>Blurred at both ends</source>
        <translation>An beiden Enden unscharf</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation>An Fenster anpassen</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Nach links drehen</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Perspective</source>
        <translation>Perspektive</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>Web service</source>
        <translation>Webdienst</translation>
    </message>
    <message>
        <source>A SOAP client and the small service that it asks, both in this process.</source>
        <translation>Ein SOAP-Client und der kleine Dienst, den er befragt, beide in diesem Prozess.</translation>
    </message>
</context>
<context>
    <name>WebServicePage</name>
    <message>
        <source>Amount</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Ask the service</source>
        <translation>Dienst befragen</translation>
    </message>
    <message>
        <source>Request</source>
        <translation>Anfrage</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>Antwort</translation>
    </message>
    <message>
        <source>Fault: %1</source>
        <translation>Fehler: %1</translation>
    </message>
    <message>
        <source>%1 cm</source>
        <translation>%1 cm</translation>
    </message>
</context>
</TS>
