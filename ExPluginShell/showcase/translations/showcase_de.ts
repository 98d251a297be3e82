<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AsyncPage</name>
    <message>
        <source>Move the slider: its many requests become one call.</source>
        <translation>Bewegen Sie den Regler: Aus vielen Anforderungen wird ein Aufruf.</translation>
    </message>
    <message>
        <source>Not running.</source>
        <translation>Läuft nicht.</translation>
    </message>
    <message>
        <source>While the page waits, clicks are held back and delivered after the wait.</source>
        <translation>Während die Seite wartet, werden Klicks zurückgehalten und danach zugestellt.</translation>
    </message>
    <message>
        <source>Clicks: 0</source>
        <translation>Klicks: 0</translation>
    </message>
    <message>
        <source>%1 items on a pool of two threads.</source>
        <translation>%1 Aufgaben auf zwei Threads.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Delayed calls</source>
        <translation>Verzögerte Aufrufe</translation>
    </message>
    <message>
        <source>Periodic call</source>
        <translation>Regelmäßiger Aufruf</translation>
    </message>
    <message>
        <source>Work items</source>
        <translation>Aufgaben</translation>
    </message>
    <message>
        <source>Waits</source>
        <translation>Warten</translation>
    </message>
    <message>
        <source>Wait, input excluded</source>
        <translation>Warten ohne Eingaben</translation>
    </message>
    <message>
        <source>Wait for a worker</source>
        <translation>Auf eine Aufgabe warten</translation>
    </message>
    <message>
        <source>Click me meanwhile</source>
        <translation>Klicken Sie mich inzwischen</translation>
    </message>
    <message>
        <source>Requests: %1, calls: %2</source>
        <translation>Anforderungen: %1, Aufrufe: %2</translation>
    </message>
    <message>
        <source>Every %1 ms.</source>
        <translation>Alle %1 ms.</translation>
    </message>
    <message>
        <source>Stopped. Calls: %1</source>
        <translation>Angehalten. Aufrufe: %1</translation>
    </message>
    <message>
        <source>Calls: %1</source>
        <translation>Aufrufe: %1</translation>
    </message>
    <message>
        <source>%1 of %2 items finished, %3 of them stopped.</source>
        <translation>%1 von %2 Aufgaben beendet, davon %3 angehalten.</translation>
    </message>
    <message>
        <source>Waiting for %1 ms. Clicks are held back.</source>
        <translation>%1 ms Wartezeit. Klicks werden zurückgehalten.</translation>
    </message>
    <message>
        <source>The wait is over. Clicks held back and delivered now: %1</source>
        <translation>Die Wartezeit ist um. Zurückgehaltene und jetzt zugestellte Klicks: %1</translation>
    </message>
    <message>
        <source>Waiting for a worker. Clicks are delivered at once.</source>
        <translation>Warten auf einen Arbeitsfaden. Klicks werden sofort zugestellt.</translation>
    </message>
    <message>
        <source>The worker has finished.</source>
        <translation>Die Aufgabe ist beendet.</translation>
    </message>
    <message>
        <source>Clicks: %1</source>
        <translation>Klicks: %1</translation>
    </message>
</context>
<context>
    <name>DrawingPage</name>
    <message>
        <source>Drag across the picture to draw a line</source>
        <translation>Ziehen Sie über das Bild, um eine Linie zu zeichnen</translation>
    </message>
    <message>
        <source>Picture with guide lines</source>
        <translation>Bild mit Hilfslinien</translation>
    </message>
    <message>
        <source>Insert adds a line and Delete removes it, Page Up and Page Down choose one, the arrow keys move its end, with Shift its start.</source>
        <translation>Einfg fügt eine Linie hinzu und Entf entfernt sie, Bild auf und Bild ab wählen eine, die Pfeiltasten bewegen ihr Ende, mit Umschalt ihren Anfang.</translation>
    </message>
    <message>
        <source>Stretch the pattern</source>
        <translation>Muster strecken</translation>
    </message>
    <message>
        <source>Remove all lines</source>
        <translation>Alle Linien entfernen</translation>
    </message>
    <message>
        <source>Lines: %1</source>
        <translation>Linien: %1</translation>
    </message>
</context>
<context>
    <name>FilesPage</name>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>As a name and as a path</source>
        <translation>Als Name und als Pfad</translation>
    </message>
    <message>
        <source>Two paths</source>
        <translation>Zwei Pfade</translation>
    </message>
    <message>
        <source>As a whole and without suffix</source>
        <translation>Im Ganzen und ohne Endung</translation>
    </message>
    <message>
        <source>Sizes as text</source>
        <translation>Größen als Text</translation>
    </message>
    <message>
        <source>A folder as an archive</source>
        <translation>Ein Ordner als Archiv</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Wählen …</translation>
    </message>
    <message>
        <source>Pack</source>
        <translation>Packen</translation>
    </message>
    <message>
        <source>Unpack and compare</source>
        <translation>Entpacken und vergleichen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The archive</source>
        <translation>Das Archiv</translation>
    </message>
    <message>
        <source>Show in the file browser</source>
        <translation>Im Dateimanager zeigen</translation>
    </message>
    <message>
        <source>Send to the recycle bin</source>
        <translation>In den Papierkorb legen</translation>
    </message>
    <message>
        <source>may be used</source>
        <translation>erlaubt</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>abgelehnt</translation>
    </message>
    <message>
        <source>equal</source>
        <translation>gleich</translation>
    </message>
    <message>
        <source>different</source>
        <translation>verschieden</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Not done: cancelled, or a file can&apos;t be read or written.</source>
        <translation>Nicht ausgeführt: abgebrochen, oder eine Datei ist nicht lesbar oder schreibbar.</translation>
    </message>
    <message>
        <source>Files packed: %1, archive: %2</source>
        <translation>Gepackte Dateien: %1, Archiv: %2</translation>
    </message>
    <message>
        <source>Files unpacked: %1. Both folders are equal.</source>
        <translation>Entpackte Dateien: %1. Beide Ordner sind gleich.</translation>
    </message>
    <message>
        <source>The folders differ: %1</source>
        <translation>Die Ordner unterscheiden sich: %1</translation>
    </message>
    <message>
        <source>The archive is in the recycle bin.</source>
        <translation>Das Archiv liegt im Papierkorb.</translation>
    </message>
    <message>
        <source>There is no archive.</source>
        <translation>Es gibt kein Archiv.</translation>
    </message>
</context>
<context>
    <name>LanguagesPage</name>
    <message>
        <source>Use this language</source>
        <translation>Diese Sprache verwenden</translation>
    </message>
    <message>
        <source>What follows the language</source>
        <translation>Was der Sprache folgt</translation>
    </message>
    <message>
        <source>A date</source>
        <translation>Ein Datum</translation>
    </message>
    <message>
        <source>A number</source>
        <translation>Eine Zahl</translation>
    </message>
    <message>
        <source>A button of Qt</source>
        <translation>Eine Schaltfläche von Qt</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Catalogue</source>
        <translation>Übersetzungsdatei</translation>
    </message>
    <message>
        <source>Abbreviation</source>
        <translation>Kürzel</translation>
    </message>
</context>
<context>
    <name>LoggingPage</name>
    <message>
        <source>Log folder</source>
        <translation>Ordner der Protokolle</translation>
    </message>
    <message>
        <source>Minimum level</source>
        <translation>Mindeststufe</translation>
    </message>
    <message>
        <source>A line from the showcase</source>
        <translation>Eine Zeile aus der Vorführung</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>Debug</translation>
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
        <source>The log of this process</source>
        <translation>Das Protokoll dieses Prozesses</translation>
    </message>
</context>
<context>
    <name>MessageBoxPage</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Without a text each box brings one of its own.</source>
        <translation>Ohne Text bringt jedes Fenster seinen eigenen mit.</translation>
    </message>
    <message>
        <source>Message boxes</source>
        <translation>Meldungsfenster</translation>
    </message>
    <message>
        <source>About dialogs</source>
        <translation>Info-Dialoge</translation>
    </message>
    <message>
        <source>About the product</source>
        <translation>Über das Produkt</translation>
    </message>
    <message>
        <source>About the product family</source>
        <translation>Über die Produktfamilie</translation>
    </message>
    <message>
        <source>No answer yet</source>
        <translation>Noch keine Antwort</translation>
    </message>
    <message>
        <source>The last answer: %1</source>
        <translation>Die letzte Antwort: %1</translation>
    </message>
</context>
<context>
    <name>MessageBoxes</name>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>The picture was saved. You find it beside the original.</source>
        <translation>Das Bild wurde gespeichert. Sie finden es neben dem Original.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>No lens profile was found for this picture. Distortion is not corrected.</source>
        <translation>Für dieses Bild wurde kein Objektivprofil gefunden. Die Verzeichnung wird nicht korrigiert.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>The picture could not be saved, because the disk is full.</source>
        <translation>Das Bild konnte nicht gespeichert werden, weil der Datenträger voll ist.</translation>
    </message>
    <message>
        <source>Yes or no</source>
        <translation>Ja oder nein</translation>
    </message>
    <message>
        <source>A picture of this name is there already. Do you want to replace it?</source>
        <translation>Ein Bild dieses Namens ist schon vorhanden. Möchten Sie es ersetzen?</translation>
    </message>
    <message>
        <source>Save, discard, cancel</source>
        <translation>Speichern, verwerfen, abbrechen</translation>
    </message>
    <message>
        <source>The picture was changed. Do you want to save your corrections?</source>
        <translation>Das Bild wurde verändert. Möchten Sie Ihre Korrekturen speichern?</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>The camera was held upright. Do you want to rotate the picture?</source>
        <translation>Die Kamera wurde hochkant gehalten. Möchten Sie das Bild drehen?</translation>
    </message>
    <message>
        <source>Quit during work</source>
        <translation>Beenden während der Arbeit</translation>
    </message>
    <message>
        <source>Pictures are still being corrected. What is not finished will be lost.</source>
        <translation>Es werden noch Bilder korrigiert. Was nicht fertig ist, geht verloren.</translation>
    </message>
</context>
<context>
    <name>NativeDialogsPage</name>
    <message>
        <source>Pictures (*.jpg *.png *.tif);;All files (*)</source>
        <translation>Bilder (*.jpg *.png *.tif);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Open a file</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>Open files</source>
        <translation>Dateien öffnen</translation>
    </message>
    <message>
        <source>Save a file</source>
        <translation>Datei speichern</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Choose a folder by its pictures</source>
        <translation>Ordner anhand der Bilder wählen</translation>
    </message>
    <message>
        <source>What was chosen</source>
        <translation>Was gewählt wurde</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>Logging</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Every line goes through one bridge to the logger of the process.</source>
        <translation>Jede Zeile geht über eine Brücke an den Protokollschreiber des Prozesses.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Preferences of this product, and the file that the product family shares.</source>
        <translation>Voreinstellungen dieses Produkts und die gemeinsame Datei der Produktfamilie.</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Speicherorte</translation>
    </message>
    <message>
        <source>Every folder and file that the product knows.</source>
        <translation>Alle Ordner und Dateien, die das Produkt kennt.</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Sprachen</translation>
    </message>
    <message>
        <source>One choice for all products; texts, dates and numbers follow it at once.</source>
        <translation>Eine Wahl für alle Produkte; Texte, Datum und Zahlen folgen sofort.</translation>
    </message>
    <message>
        <source>Asynchronous</source>
        <translation>Asynchron</translation>
    </message>
    <message>
        <source>Delayed calls, work items and waits: the window answers while something is under way.</source>
        <translation>Verzögerte Aufrufe, Aufgaben und Wartezeiten: Das Fenster bleibt bedienbar.</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Names, sizes, archives, the recycle bin and the file browser.</source>
        <translation>Namen, Größen, Archive, Papierkorb und Dateimanager.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Every standard widget under the product&apos;s style and style sheets.</source>
        <translation>Alle Standard-Bedienelemente im Stil des Produkts.</translation>
    </message>
    <message>
        <source>Message boxes</source>
        <translation>Meldungsfenster</translation>
    </message>
    <message>
        <source>The product&apos;s own boxes: 520 pixels wide, answered by mouse or keyboard.</source>
        <translation>Die eigenen Meldungsfenster des Produkts: 520 Pixel breit, mit Maus oder Tastatur zu beantworten.</translation>
    </message>
    <message>
        <source>Drawing tools</source>
        <translation>Zeichenwerkzeuge</translation>
    </message>
    <message>
        <source>Guide lines and cursors of the correction tools, on a picture painted by code.</source>
        <translation>Hilfslinien und Mauszeiger der Korrekturwerkzeuge auf einem vom Programm gemalten Bild.</translation>
    </message>
    <message>
        <source>Native dialogs</source>
        <translation>Systemdialoge</translation>
    </message>
    <message>
        <source>The dialogs of the system for files and folders.</source>
        <translation>Die Dialoge des Systems für Dateien und Ordner.</translation>
    </message>
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
    <name>SettingsPage</name>
    <message>
        <source>Values are kept in</source>
        <translation>Werte liegen in</translation>
    </message>
    <message>
        <source>Minimum log level</source>
        <translation>Mindeststufe des Protokolls</translation>
    </message>
    <message>
        <source>Write a log, from the next start on</source>
        <translation>Protokoll schreiben, ab dem nächsten Start</translation>
    </message>
    <message>
        <source>Crash reports may be sent</source>
        <translation>Absturzberichte dürfen gesendet werden</translation>
    </message>
    <message>
        <source>Any value</source>
        <translation>Beliebiger Wert</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>The file of the product family</source>
        <translation>Die Datei der Produktfamilie</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Note to the other products</source>
        <translation>Notiz an die anderen Produkte</translation>
    </message>
    <message>
        <source>Write into the file</source>
        <translation>In die Datei schreiben</translation>
    </message>
    <message>
        <source>a temporary file, gone at the end</source>
        <translation>einer temporären Datei, am Ende gelöscht</translation>
    </message>
    <message>
        <source>the system&apos;s own store</source>
        <translation>dem Speicher des Systems</translation>
    </message>
</context>
<context>
    <name>ShowcaseWindow</name>
    <message>
        <source>Trelio Frame – Showcase</source>
        <translation>Trelio Frame – Vorführung</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Data of the product</source>
        <translation>Daten des Produkts</translation>
    </message>
    <message>
        <source>Cache on disk</source>
        <translation>Cache auf dem Datenträger</translation>
    </message>
    <message>
        <source>Cached token</source>
        <translation>Gemerktes Token</translation>
    </message>
    <message>
        <source>Packs of the user</source>
        <translation>Pakete des Benutzers</translation>
    </message>
    <message>
        <source>Favourite presets</source>
        <translation>Bevorzugte Vorgaben</translation>
    </message>
    <message>
        <source>Calibration data</source>
        <translation>Kalibrierungsdaten</translation>
    </message>
    <message>
        <source>Crash reports</source>
        <translation>Absturzberichte</translation>
    </message>
    <message>
        <source>Crash reports under way</source>
        <translation>Absturzberichte in Arbeit</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Protokolle</translation>
    </message>
    <message>
        <source>Sample pictures</source>
        <translation>Beispielbilder</translation>
    </message>
    <message>
        <source>Preferences of this computer</source>
        <translation>Vorgaben dieses Computers</translation>
    </message>
    <message>
        <source>Settings of the product family</source>
        <translation>Einstellungen der Produktfamilie</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>not on this system</source>
        <translation>auf diesem System nicht vorhanden</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>Purpose</source>
        <translation>Zweck</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Exists</source>
        <translation>Vorhanden</translation>
    </message>
</context>
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
        <source>Perspective</source>
        <translation>Perspektive</translation>
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
