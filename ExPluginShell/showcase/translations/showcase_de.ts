<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AsyncPage</name>
    <message numerus="yes">
        <source>%n request(s)</source>
        <translation>
            <numerusform>%n Anforderung</numerusform>
            <numerusform>%n Anforderungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n call(s)</source>
        <translation>
            <numerusform>%n Aufruf</numerusform>
            <numerusform>%n Aufrufe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The wait is over. %n click(s) held back and delivered afterwards.</source>
        <translation>
            <numerusform>Die Wartezeit ist um. %n Klick zurückgehalten und danach zugestellt.</numerusform>
            <numerusform>Die Wartezeit ist um. %n Klicks zurückgehalten und danach zugestellt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Delayed calls</source>
        <translation>Verzögerte Aufrufe</translation>
    </message>
    <message>
        <source>Requests</source>
        <translation>Anforderungen</translation>
    </message>
    <message>
        <source>Move the slider: its many requests become one call.</source>
        <translation>Bewegen Sie den Regler: Aus vielen Anforderungen wird ein Aufruf.</translation>
    </message>
    <message>
        <source>Periodic call</source>
        <translation>Regelmäßiger Aufruf</translation>
    </message>
    <message>
        <source>Not running.</source>
        <translation>Läuft nicht.</translation>
    </message>
    <message>
        <source>Waits</source>
        <translation>Warten</translation>
    </message>
    <message>
        <source>No clicks yet.</source>
        <translation>Noch keine Klicks.</translation>
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
    <message numerus="yes">
        <source>%n click(s)</source>
        <translation>
            <numerusform>%n Klick</numerusform>
            <numerusform>%n Klicks</numerusform>
        </translation>
    </message>
    <message>
        <source>While the page waits, clicks are held back and delivered after the wait.</source>
        <translation>Während die Seite wartet, werden Klicks zurückgehalten und danach zugestellt.</translation>
    </message>
    <message>
        <source>Every %1 ms.</source>
        <translation>Alle %1 ms.</translation>
    </message>
    <message numerus="yes">
        <source>Stopped after %n call(s).</source>
        <translation>
            <numerusform>Nach %n Aufruf angehalten.</numerusform>
            <numerusform>Nach %n Aufrufen angehalten.</numerusform>
        </translation>
    </message>
    <message>
        <source>Waiting for %1 ms. Clicks are held back.</source>
        <translation>%1 ms Wartezeit. Klicks werden zurückgehalten.</translation>
    </message>
    <message>
        <source>Waiting for a worker. Clicks are delivered at once.</source>
        <translation>Warten auf einen Arbeitsfaden. Klicks werden sofort zugestellt.</translation>
    </message>
    <message>
        <source>The worker has finished.</source>
        <translation>Die Aufgabe ist beendet.</translation>
    </message>
</context>
<context>
    <name>FatalPage</name>
    <message>
        <source>Little free space</source>
        <translation>Wenig freier Speicherplatz</translation>
    </message>
    <message>
        <source>The drive of the temporary folder is almost full.</source>
        <translation>Das Laufwerk des temporären Ordners ist fast voll.</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Kein Arbeitsspeicher mehr</translation>
    </message>
    <message>
        <source>A program of its own, which will be closed.</source>
        <translation>Ein eigenständiges Programm, das geschlossen wird.</translation>
    </message>
    <message>
        <source>Out of memory in the photo editor</source>
        <translation>Kein Arbeitsspeicher mehr im Bildeditor</translation>
    </message>
    <message>
        <source>The editor may become unstable.</source>
        <translation>Der Editor kann instabil werden.</translation>
    </message>
    <message>
        <source>Unhandled exception</source>
        <translation>Unbehandelte Ausnahme</translation>
    </message>
    <message>
        <source>The program will be closed.</source>
        <translation>Das Programm wird geschlossen.</translation>
    </message>
    <message>
        <source>The texts are prepared in the current language while all is well. On Windows the system&apos;s own message box shows them, on Linux a message program (kdialog, zenity or xmessage) or the standard error output.</source>
        <translation>Die Texte werden vorab in der aktuellen Sprache vorbereitet. Unter Windows zeigt sie das Meldungsfenster des Systems, unter Linux ein Meldungsprogramm (kdialog, zenity oder xmessage) oder die Standardfehlerausgabe.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Shown and closed: %1</source>
        <translation>Gezeigt und geschlossen: %1</translation>
    </message>
</context>
<context>
    <name>FilesPage</name>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
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
        <source>As a name</source>
        <translation>Als Name</translation>
    </message>
    <message>
        <source>As a path</source>
        <translation>Als Pfad</translation>
    </message>
    <message>
        <source>First path</source>
        <translation>Erster Pfad</translation>
    </message>
    <message>
        <source>Second path</source>
        <translation>Zweiter Pfad</translation>
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
        <source>Compared as a whole</source>
        <translation>Im Ganzen verglichen</translation>
    </message>
    <message>
        <source>Compared without the suffix</source>
        <translation>Ohne Endung verglichen</translation>
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
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen …</translation>
    </message>
    <message>
        <source>Pack</source>
        <translation>Packen</translation>
    </message>
    <message>
        <source>Packing</source>
        <translation>Packen</translation>
    </message>
    <message>
        <source>Unpack</source>
        <translation>Entpacken</translation>
    </message>
    <message>
        <source>Unpacking</source>
        <translation>Entpacken</translation>
    </message>
    <message>
        <source>Show in the file browser</source>
        <translation>Im Dateimanager zeigen</translation>
    </message>
    <message>
        <source>Asked the file browser to show %1.</source>
        <translation>Die Dateiverwaltung wurde gebeten, %1 zu zeigen.</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Cancelled: no archive is left.</source>
        <translation>Abgebrochen: Es bleibt kein Archiv zurück.</translation>
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
    <message>
        <source>Now in use: %1</source>
        <translation>Jetzt in Gebrauch: %1</translation>
    </message>
    <message>
        <source>Already in use: %1</source>
        <translation>Bereits in Gebrauch: %1</translation>
    </message>
</context>
<context>
    <name>LogModel</name>
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
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Stufe</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>Funktion</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
</context>
<context>
    <name>LoggingPage</name>
    <message>
        <source>Log folder</source>
        <translation>Ordner der Protokolle</translation>
    </message>
    <message>
        <source>Minimum level written</source>
        <translation>Geschriebene Mindeststufe</translation>
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
        <source>Show from</source>
        <translation>Anzeigen ab</translation>
    </message>
    <message>
        <source>The log of this process</source>
        <translation>Das Protokoll dieses Prozesses</translation>
    </message>
    <message>
        <source>Logged at the level %1.</source>
        <translation>Mit der Stufe %1 protokolliert.</translation>
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
        <source>%1: read and closed.</source>
        <translation>%1: gelesen und geschlossen.</translation>
    </message>
    <message>
        <source>%1: the answer is %2.</source>
        <translation>%1: Die Antwort ist %2.</translation>
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
    <name>Pages</name>
    <message>
        <source>Workplace</source>
        <translation>Arbeitsplatz</translation>
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
        <source>Languages</source>
        <translation>Sprachen</translation>
    </message>
    <message>
        <source>One choice for all products; texts, dates and numbers follow it at once.</source>
        <translation>Eine Wahl für alle Produkte; Texte, Datum und Zahlen folgen sofort.</translation>
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
        <source>State and process</source>
        <translation>Zustand und Prozess</translation>
    </message>
    <message>
        <source>What the product remembers about its launches, and the process it runs in.</source>
        <translation>Was das Produkt sich über seine Starts merkt, und der Prozess, in dem es läuft.</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Names, sizes, archives and the file browser.</source>
        <translation>Namen, Größen, Archive und Dateimanager.</translation>
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
        <source>Resources</source>
        <translation>Ressourcen</translation>
    </message>
    <message>
        <source>Icons, fonts, countries, rules and style sheets that come with the library.</source>
        <translation>Symbole, Schriften, Länder, Regeln und Stylesheets, die mit der Bibliothek kommen.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Standard widgets under the product&apos;s style and style sheets, in the states that they can be in.</source>
        <translation>Standardelemente im Stil und mit den Stylesheets des Produkts, in den Zuständen, die sie annehmen können.</translation>
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
        <source>Fatal messages</source>
        <translation>Schwere Fehler</translation>
    </message>
    <message>
        <source>Texts that can be shown when the process is in trouble, without allocating memory.</source>
        <translation>Texte, die sich im Notfall anzeigen lassen, ohne Speicher anzufordern.</translation>
    </message>
    <message>
        <source>Web service</source>
        <translation>Webdienst</translation>
    </message>
    <message>
        <source>A SOAP client and the small service that it asks, both in this process.</source>
        <translation>Ein SOAP-Client und der kleine Dienst, den er befragt, beide in diesem Prozess.</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Every line goes through one bridge to the logger of the process.</source>
        <translation>Jede Zeile geht über eine Brücke an den Protokollschreiber des Prozesses.</translation>
    </message>
</context>
<context>
    <name>ResourcesPage</name>
    <message>
        <source>Icons</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>Schriften</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Länder</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Regeln</translation>
    </message>
    <message>
        <source>Style sheets</source>
        <translation>Stylesheets</translation>
    </message>
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
        <source>Checked</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiviert</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Fokus</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>Ground</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Copy the path</source>
        <translation>Pfad kopieren</translation>
    </message>
    <message>
        <source>The six preferred countries stand above the line, which cannot be chosen.</source>
        <translation>Die sechs bevorzugten Länder stehen über der Linie, die sich nicht wählen lässt.</translation>
    </message>
    <message numerus="yes">
        <source>%n rule(s) lead on from</source>
        <translation>
            <numerusform>%n Regel führt weiter von</numerusform>
            <numerusform>%n Regeln führen weiter von</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n icon(s)</source>
        <translation>
            <numerusform>%n Symbol</numerusform>
            <numerusform>%n Symbole</numerusform>
        </translation>
    </message>
    <message>
        <source>No icon is chosen.</source>
        <translation>Kein Symbol ist gewählt.</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>Kopiert: %1</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Keep all settings in a temporary file, which is removed afterwards</source>
        <translation>Alle Einstellungen in einer temporären Datei halten, die danach gelöscht wird</translation>
    </message>
    <message>
        <source>Logged from the next start on: %1</source>
        <translation>Protokolliert ab dem nächsten Start: %1</translation>
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
        <source>Stored: on</source>
        <translation>Gespeichert: ein</translation>
    </message>
    <message>
        <source>Stored: off</source>
        <translation>Gespeichert: aus</translation>
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
        <source>Removed: %1</source>
        <translation>Entfernt: %1</translation>
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
        <source>Written into the file of the product family.</source>
        <translation>In die Datei der Produktfamilie geschrieben.</translation>
    </message>
    <message>
        <source>The file of the product family cannot be written.</source>
        <translation>Die Datei der Produktfamilie kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Settings are kept in %1.</source>
        <translation>Einstellungen liegen in %1.</translation>
    </message>
    <message>
        <source>Settings are kept in the system&apos;s own store again.</source>
        <translation>Einstellungen liegen wieder im Einstellungsspeicher des Systems.</translation>
    </message>
    <message>
        <source>Written and read back: %1 = %2</source>
        <translation>Geschrieben und zurückgelesen: %1 = %2</translation>
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
    <message>
        <source>Show the code</source>
        <translation>Quelltext zeigen</translation>
    </message>
    <message>
        <source>Code of this page</source>
        <translation>Quelltext dieser Seite</translation>
    </message>
</context>
<context>
    <name>StatePage</name>
    <message>
        <source>First launch on this profile</source>
        <translation>Erster Start mit diesem Profil</translation>
    </message>
    <message>
        <source>Mode of the last launch</source>
        <translation>Modus des letzten Starts</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>noch keiner</translation>
    </message>
    <message>
        <source>Identifier of this user</source>
        <translation>Kennung dieses Benutzers</translation>
    </message>
    <message>
        <source>Reseller</source>
        <translation>Händler</translation>
    </message>
    <message>
        <source>Results saved as actions</source>
        <translation>Ergebnisse als Aktionen gespeichert</translation>
    </message>
    <message>
        <source>Crash reports may be sent</source>
        <translation>Absturzberichte dürfen gesendet werden</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Prozess</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>File version</source>
        <translation>Dateiversion</translation>
    </message>
    <message>
        <source>unknown: the file carries no version</source>
        <translation>unbekannt: Die Datei trägt keine Version</translation>
    </message>
    <message>
        <source>Process number</source>
        <translation>Prozessnummer</translation>
    </message>
    <message>
        <source>Folder of the Qt plug-ins</source>
        <translation>Ordner der Qt-Plug-ins</translation>
    </message>
    <message>
        <source>Crash counter</source>
        <translation>Absturzzähler</translation>
    </message>
    <message>
        <source>A module counts up before risky work and resets the counter after it. What is left after a crash is seen at the next start.</source>
        <translation>Ein Modul zählt vor riskanter Arbeit hoch und setzt den Zähler danach zurück. Was nach einem Absturz übrig ist, zeigt sich beim nächsten Start.</translation>
    </message>
    <message>
        <source>Runs that ended abnormally</source>
        <translation>Nicht ordentlich beendete Läufe</translation>
    </message>
    <message>
        <source>Count up</source>
        <translation>Hochzählen</translation>
    </message>
    <message>
        <source>Counted up: work is under way.</source>
        <translation>Hochgezählt: Die Arbeit läuft.</translation>
    </message>
    <message>
        <source>Reset the counter</source>
        <translation>Zähler zurücksetzen</translation>
    </message>
    <message>
        <source>Reset: the work ended well.</source>
        <translation>Zurückgesetzt: Die Arbeit endete ordentlich.</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
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
        <source>Read again at %1.</source>
        <translation>Erneut gelesen um %1.</translation>
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
        <source>Check boxes and radio buttons</source>
        <translation>Kontrollkästchen und Optionsfelder</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Partly</source>
        <translation>Teils</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Old harbour at dusk</source>
        <translation>Alter Hafen im Abendlicht</translation>
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
        <source>Cannot be changed</source>
        <translation>Kann nicht geändert werden</translation>
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
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Nach links drehen</translation>
    </message>
</context>
<context>
    <name>ToolPanel</name>
    <message>
        <source>Horizon</source>
        <translation>Horizont</translation>
    </message>
    <message>
        <source>Drag a line along what should be level. With Shift it turns in steps of 15°.</source>
        <translation>Ziehen Sie eine Linie entlang dessen, was waagerecht sein soll. Mit Umschalt dreht sie sich in Schritten von 15°.</translation>
    </message>
    <message>
        <source>Keystoning</source>
        <translation>Stürzende Linien</translation>
    </message>
    <message>
        <source>Lay both lines along edges that are upright in reality. They snap to the thirds of the picture and to each other; with Ctrl they do not.</source>
        <translation>Legen Sie beide Linien an Kanten, die in Wirklichkeit senkrecht sind. Sie rasten an den Dritteln des Bildes und aneinander ein; mit Strg nicht.</translation>
    </message>
    <message>
        <source>Distortion</source>
        <translation>Verzeichnung</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Zuschneiden</translation>
    </message>
    <message>
        <source>Tilt-shift</source>
        <translation>Tilt-Shift</translation>
    </message>
    <message>
        <source>What lies between the outer lines stays sharp.</source>
        <translation>Was zwischen den äußeren Linien liegt, bleibt scharf.</translation>
    </message>
    <message>
        <source>No tool</source>
        <translation>Kein Werkzeug</translation>
    </message>
    <message>
        <source>Choose a tool at the left. The rules of the product decide what else a click switches on, switches off or applies.</source>
        <translation>Wählen Sie links ein Werkzeug. Die Regeln des Produkts bestimmen, was ein Klick sonst noch ein- oder ausschaltet oder anwendet.</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Reset this tool</source>
        <translation>Dieses Werkzeug zurücksetzen</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>From pincushion to barrel</source>
        <translation>Von kissenförmig bis tonnenförmig</translation>
    </message>
    <message>
        <source>Search, for example: canon 24-70</source>
        <translation>Suchen, zum Beispiel: canon 24-70</translation>
    </message>
    <message>
        <source>Camera and lens</source>
        <translation>Kamera und Objektiv</translation>
    </message>
    <message>
        <source>Lenses found</source>
        <translation>Gefundene Objektive</translation>
    </message>
    <message>
        <source>Every word has to occur, in any order.</source>
        <translation>Alle Wörter müssen vorkommen, in beliebiger Reihenfolge.</translation>
    </message>
    <message>
        <source>Aspect ratio</source>
        <translation>Seitenverhältnis</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Unschärfe</translation>
    </message>
    <message>
        <source>Width of the sharp area</source>
        <translation>Breite des scharfen Bereichs</translation>
    </message>
    <message>
        <source>The calibration database cannot be read.</source>
        <translation>Die Kalibrierungsdatenbank kann nicht gelesen werden.</translation>
    </message>
    <message numerus="yes">
        <source>%n lens(es) found</source>
        <translation>
            <numerusform>%n Objektiv gefunden</numerusform>
            <numerusform>%n Objektive gefunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n millisecond(s)</source>
        <translation>
            <numerusform>%n Millisekunde</numerusform>
            <numerusform>%n Millisekunden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WebServicePage</name>
    <message>
        <source>Request</source>
        <translation>Anfrage</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>Antwort</translation>
    </message>
    <message>
        <source>The service has not been asked yet.</source>
        <translation>Der Dienst wurde noch nicht gefragt.</translation>
    </message>
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
        <source>Fault: %1</source>
        <translation>Fehler: %1</translation>
    </message>
    <message>
        <source>%1 cm</source>
        <translation>%1 cm</translation>
    </message>
</context>
<context>
    <name>Workplace</name>
    <message>
        <source>Horizon</source>
        <translation>Horizont</translation>
    </message>
    <message>
        <source>Keystoning</source>
        <translation>Stürzende Linien</translation>
    </message>
    <message>
        <source>Distortion</source>
        <translation>Verzeichnung</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Zuschneiden</translation>
    </message>
    <message>
        <source>Tilt-shift</source>
        <translation>Tilt-Shift</translation>
    </message>
    <message numerus="yes">
        <source>%n rule(s) read. The rule behind a click is shown here.</source>
        <translation>
            <numerusform>%n Regel gelesen. Hier steht die Regel hinter jedem Klick.</numerusform>
            <numerusform>%n Regeln gelesen. Hier steht die Regel hinter jedem Klick.</numerusform>
        </translation>
    </message>
    <message>
        <source>The rules cannot be read: %1</source>
        <translation>Die Regeln können nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Öffnen …</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Reset all corrections</source>
        <translation>Alle Korrekturen zurücksetzen</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>Preview of the current tool</source>
        <translation>Vorschau des aktuellen Werkzeugs</translation>
    </message>
    <message>
        <source>Compare before and after</source>
        <translation>Vorher und nachher vergleichen</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Vorgaben</translation>
    </message>
    <message>
        <source>Save the corrections as a preset</source>
        <translation>Korrekturen als Vorgabe speichern</translation>
    </message>
    <message>
        <source>Apply to the full picture</source>
        <translation>Auf das ganze Bild anwenden</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Speichern …</translation>
    </message>
    <message>
        <source>Pack…</source>
        <translation>Packen …</translation>
    </message>
    <message>
        <source>Send to the recycle bin</source>
        <translation>In den Papierkorb legen</translation>
    </message>
    <message>
        <source>No rule of %1 holds for %2.</source>
        <translation>Keine Regel von %1 gilt für %2.</translation>
    </message>
    <message>
        <source>Rule: %1</source>
        <translation>Regel: %1</translation>
    </message>
    <message>
        <source>Bring back from the recycle bin</source>
        <translation>Aus dem Papierkorb zurückholen</translation>
    </message>
    <message>
        <source>No corrections yet</source>
        <translation>Noch keine Korrekturen</translation>
    </message>
    <message>
        <source>Open a photo</source>
        <translation>Foto öffnen</translation>
    </message>
    <message>
        <source>Pictures (*.jpg *.jpeg *.png *.bmp)</source>
        <translation>Bilder (*.jpg *.jpeg *.png *.bmp)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>Applying the corrections</source>
        <translation>Korrekturen werden angewendet</translation>
    </message>
    <message>
        <source>Stopped. The picture is unchanged.</source>
        <translation>Angehalten. Das Bild ist unverändert.</translation>
    </message>
    <message>
        <source>%1 cannot be read any more.</source>
        <translation>%1 kann nicht mehr gelesen werden.</translation>
    </message>
    <message>
        <source>Applied in %1 s</source>
        <translation>Angewendet in %1 s</translation>
    </message>
    <message>
        <source>Measure: %1</source>
        <translation>Messwert: %1</translation>
    </message>
    <message>
        <source>Save the picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>Pictures (*.jpg *.png)</source>
        <translation>Bilder (*.jpg *.png)</translation>
    </message>
    <message>
        <source>Saving %1</source>
        <translation>%1 wird gespeichert</translation>
    </message>
    <message>
        <source>%1 cannot be saved: %2</source>
        <translation>%1 kann nicht gespeichert werden: %2</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Gespeichert: %1</translation>
    </message>
    <message>
        <source>Pack the saved pictures</source>
        <translation>Gespeicherte Bilder packen</translation>
    </message>
    <message>
        <source>Archives (*.zip)</source>
        <translation>Archive (*.zip)</translation>
    </message>
    <message>
        <source>Packing %1</source>
        <translation>%1 wird gepackt</translation>
    </message>
    <message>
        <source>Save a preset</source>
        <translation>Vorgabe speichern</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>My preset</source>
        <translation>Meine Vorgabe</translation>
    </message>
    <message>
        <source>Preset saved: %1</source>
        <translation>Vorgabe gespeichert: %1</translation>
    </message>
    <message>
        <source>Brought back: %1</source>
        <translation>Zurückgeholt: %1</translation>
    </message>
    <message>
        <source>Cannot be brought back: %1</source>
        <translation>Kann nicht zurückgeholt werden: %1</translation>
    </message>
    <message>
        <source>In the recycle bin: %1</source>
        <translation>Im Papierkorb: %1</translation>
    </message>
    <message>
        <source>Cannot be moved to the recycle bin: %1</source>
        <translation>Kann nicht in den Papierkorb verschoben werden: %1</translation>
    </message>
    <message>
        <source>Before and after are alike.</source>
        <translation>Vorher und nachher sind gleich.</translation>
    </message>
    <message>
        <source>Before and after differ.</source>
        <translation>Vorher und nachher unterscheiden sich.</translation>
    </message>
</context>
</TS>
