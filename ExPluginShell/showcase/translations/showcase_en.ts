<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>AsyncPage</name>
    <message numerus="yes">
        <source>%n request(s)</source>
        <translation>
            <numerusform>%n request</numerusform>
            <numerusform>%n requests</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n call(s)</source>
        <translation>
            <numerusform>%n call</numerusform>
            <numerusform>%n calls</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The wait is over. %n click(s) held back and delivered afterwards.</source>
        <translation>
            <numerusform>The wait is over. %n click held back and delivered afterwards.</numerusform>
            <numerusform>The wait is over. %n clicks held back and delivered afterwards.</numerusform>
        </translation>
    </message>
    <message>
        <source>Delayed calls</source>
        <translation>Delayed calls</translation>
    </message>
    <message>
        <source>Requests</source>
        <translation>Requests</translation>
    </message>
    <message>
        <source>Move the slider: its many requests become one call.</source>
        <translation>Move the slider: its many requests become one call.</translation>
    </message>
    <message>
        <source>Periodic call</source>
        <translation>Periodic call</translation>
    </message>
    <message>
        <source>Not running.</source>
        <translation>Not running.</translation>
    </message>
    <message>
        <source>Waits</source>
        <translation>Waits</translation>
    </message>
    <message>
        <source>No clicks yet.</source>
        <translation>No clicks yet.</translation>
    </message>
    <message>
        <source>Wait, input excluded</source>
        <translation>Wait, input excluded</translation>
    </message>
    <message>
        <source>Wait for a worker</source>
        <translation>Wait for a worker</translation>
    </message>
    <message>
        <source>Click me meanwhile</source>
        <translation>Click me meanwhile</translation>
    </message>
    <message numerus="yes">
        <source>%n click(s)</source>
        <translation>
            <numerusform>%n click</numerusform>
            <numerusform>%n clicks</numerusform>
        </translation>
    </message>
    <message>
        <source>While the page waits, clicks are held back and delivered after the wait.</source>
        <translation>While the page waits, clicks are held back and delivered after the wait.</translation>
    </message>
    <message>
        <source>Every %1 ms.</source>
        <translation>Every %1 ms.</translation>
    </message>
    <message numerus="yes">
        <source>Stopped after %n call(s).</source>
        <translation>
            <numerusform>Stopped after %n call.</numerusform>
            <numerusform>Stopped after %n calls.</numerusform>
        </translation>
    </message>
    <message>
        <source>Waiting for %1 ms. Clicks are held back.</source>
        <translation>Waiting for %1 ms. Clicks are held back.</translation>
    </message>
    <message>
        <source>Waiting for a worker. Clicks are delivered at once.</source>
        <translation>Waiting for a worker. Clicks are delivered at once.</translation>
    </message>
    <message>
        <source>The worker has finished.</source>
        <translation>The worker has finished.</translation>
    </message>
</context>
<context>
    <name>FatalPage</name>
    <message>
        <source>Little free space</source>
        <translation>Little free space</translation>
    </message>
    <message>
        <source>The drive of the temporary folder is almost full.</source>
        <translation>The drive of the temporary folder is almost full.</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>Out of memory</translation>
    </message>
    <message>
        <source>A program of its own, which will be closed.</source>
        <translation>A program of its own, which will be closed.</translation>
    </message>
    <message>
        <source>Out of memory in the photo editor</source>
        <translation>Out of memory in the photo editor</translation>
    </message>
    <message>
        <source>The editor may become unstable.</source>
        <translation>The editor may become unstable.</translation>
    </message>
    <message>
        <source>Unhandled exception</source>
        <translation>Unhandled exception</translation>
    </message>
    <message>
        <source>The program will be closed.</source>
        <translation>The program will be closed.</translation>
    </message>
    <message>
        <source>The texts are prepared in the current language while all is well. On Windows the system&apos;s own message box shows them, on Linux a message program (kdialog, zenity or xmessage) or the standard error output.</source>
        <translation>The texts are prepared in the current language while all is well. On Windows the system&apos;s own message box shows them, on Linux a message program (kdialog, zenity or xmessage) or the standard error output.</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Show</translation>
    </message>
    <message>
        <source>Shown and closed: %1</source>
        <translation>Shown and closed: %1</translation>
    </message>
</context>
<context>
    <name>FilesPage</name>
    <message>
        <source>File name</source>
        <translation>File name</translation>
    </message>
    <message>
        <source>may be used</source>
        <translation>may be used</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>refused</translation>
    </message>
    <message>
        <source>As a name</source>
        <translation>As a name</translation>
    </message>
    <message>
        <source>As a path</source>
        <translation>As a path</translation>
    </message>
    <message>
        <source>First path</source>
        <translation>First path</translation>
    </message>
    <message>
        <source>Second path</source>
        <translation>Second path</translation>
    </message>
    <message>
        <source>equal</source>
        <translation>equal</translation>
    </message>
    <message>
        <source>different</source>
        <translation>different</translation>
    </message>
    <message>
        <source>Compared as a whole</source>
        <translation>Compared as a whole</translation>
    </message>
    <message>
        <source>Compared without the suffix</source>
        <translation>Compared without the suffix</translation>
    </message>
    <message>
        <source>Sizes as text</source>
        <translation>Sizes as text</translation>
    </message>
    <message>
        <source>A folder as an archive</source>
        <translation>A folder as an archive</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Choose…</translation>
    </message>
    <message>
        <source>Pack</source>
        <translation>Pack</translation>
    </message>
    <message>
        <source>Packing</source>
        <translation>Packing</translation>
    </message>
    <message>
        <source>Unpack</source>
        <translation>Unpack</translation>
    </message>
    <message>
        <source>Unpacking</source>
        <translation>Unpacking</translation>
    </message>
    <message>
        <source>Show in the file browser</source>
        <translation>Show in the file browser</translation>
    </message>
    <message>
        <source>Asked the file browser to show %1.</source>
        <translation>Asked the file browser to show %1.</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Choose a folder</translation>
    </message>
    <message>
        <source>Cancelled: no archive is left.</source>
        <translation>Cancelled: no archive is left.</translation>
    </message>
</context>
<context>
    <name>LanguagesPage</name>
    <message>
        <source>Use this language</source>
        <translation>Use this language</translation>
    </message>
    <message>
        <source>What follows the language</source>
        <translation>What follows the language</translation>
    </message>
    <message>
        <source>A date</source>
        <translation>A date</translation>
    </message>
    <message>
        <source>A number</source>
        <translation>A number</translation>
    </message>
    <message>
        <source>A button of Qt</source>
        <translation>A button of Qt</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>Catalogue</source>
        <translation>Catalogue</translation>
    </message>
    <message>
        <source>Abbreviation</source>
        <translation>Abbreviation</translation>
    </message>
    <message>
        <source>Now in use: %1</source>
        <translation>Now in use: %1</translation>
    </message>
    <message>
        <source>Already in use: %1</source>
        <translation>Already in use: %1</translation>
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
        <translation>Warning</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Level</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>Function</translation>
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
        <translation>Log folder</translation>
    </message>
    <message>
        <source>Minimum level written</source>
        <translation>Minimum level written</translation>
    </message>
    <message>
        <source>A line from the showcase</source>
        <translation>A line from the showcase</translation>
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
        <translation>Warning</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Show from</source>
        <translation>Show from</translation>
    </message>
    <message>
        <source>The log of this process</source>
        <translation>The log of this process</translation>
    </message>
    <message>
        <source>Logged at the level %1.</source>
        <translation>Logged at the level %1.</translation>
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
        <translation>Height</translation>
    </message>
    <message>
        <source>Without a text each box brings one of its own.</source>
        <translation>Without a text each box brings one of its own.</translation>
    </message>
    <message>
        <source>Message boxes</source>
        <translation>Message boxes</translation>
    </message>
    <message>
        <source>About dialogs</source>
        <translation>About dialogs</translation>
    </message>
    <message>
        <source>About the product</source>
        <translation>About the product</translation>
    </message>
    <message>
        <source>About the product family</source>
        <translation>About the product family</translation>
    </message>
    <message>
        <source>%1: read and closed.</source>
        <translation>%1: read and closed.</translation>
    </message>
    <message>
        <source>%1: the answer is %2.</source>
        <translation>%1: the answer is %2.</translation>
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
        <translation>The picture was saved. You find it beside the original.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>No lens profile was found for this picture. Distortion is not corrected.</source>
        <translation>No lens profile was found for this picture. Distortion is not corrected.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>The picture could not be saved, because the disk is full.</source>
        <translation>The picture could not be saved, because the disk is full.</translation>
    </message>
    <message>
        <source>Yes or no</source>
        <translation>Yes or no</translation>
    </message>
    <message>
        <source>A picture of this name is there already. Do you want to replace it?</source>
        <translation>A picture of this name is there already. Do you want to replace it?</translation>
    </message>
    <message>
        <source>Save, discard, cancel</source>
        <translation>Save, discard, cancel</translation>
    </message>
    <message>
        <source>The picture was changed. Do you want to save your corrections?</source>
        <translation>The picture was changed. Do you want to save your corrections?</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Rotate</translation>
    </message>
    <message>
        <source>The camera was held upright. Do you want to rotate the picture?</source>
        <translation>The camera was held upright. Do you want to rotate the picture?</translation>
    </message>
    <message>
        <source>Quit during work</source>
        <translation>Quit during work</translation>
    </message>
    <message>
        <source>Pictures are still being corrected. What is not finished will be lost.</source>
        <translation>Pictures are still being corrected. What is not finished will be lost.</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>Workplace</source>
        <translation>Workplace</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Preferences of this product, and the file that the product family shares.</source>
        <translation>Preferences of this product, and the file that the product family shares.</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Languages</translation>
    </message>
    <message>
        <source>One choice for all products; texts, dates and numbers follow it at once.</source>
        <translation>One choice for all products; texts, dates and numbers follow it at once.</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Storage</translation>
    </message>
    <message>
        <source>Every folder and file that the product knows.</source>
        <translation>Every folder and file that the product knows.</translation>
    </message>
    <message>
        <source>State and process</source>
        <translation>State and process</translation>
    </message>
    <message>
        <source>What the product remembers about its launches, and the process it runs in.</source>
        <translation>What the product remembers about its launches, and the process it runs in.</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>Names, sizes, archives and the file browser.</source>
        <translation>Names, sizes, archives and the file browser.</translation>
    </message>
    <message>
        <source>Asynchronous</source>
        <translation>Asynchronous</translation>
    </message>
    <message>
        <source>Delayed calls, work items and waits: the window answers while something is under way.</source>
        <translation>Delayed calls, work items and waits: the window answers while something is under way.</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>Resources</translation>
    </message>
    <message>
        <source>Icons, fonts, countries, rules and style sheets that come with the library.</source>
        <translation>Icons, fonts, countries, rules and style sheets that come with the library.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Appearance</translation>
    </message>
    <message>
        <source>Standard widgets under the product&apos;s style and style sheets, in the states that they can be in.</source>
        <translation>Standard widgets under the product&apos;s style and style sheets, in the states that they can be in.</translation>
    </message>
    <message>
        <source>Message boxes</source>
        <translation>Message boxes</translation>
    </message>
    <message>
        <source>The product&apos;s own boxes: 520 pixels wide, answered by mouse or keyboard.</source>
        <translation>The product&apos;s own boxes: 520 pixels wide, answered by mouse or keyboard.</translation>
    </message>
    <message>
        <source>Fatal messages</source>
        <translation>Fatal messages</translation>
    </message>
    <message>
        <source>Texts that can be shown when the process is in trouble, without allocating memory.</source>
        <translation>Texts that can be shown when the process is in trouble, without allocating memory.</translation>
    </message>
    <message>
        <source>Web service</source>
        <translation>Web service</translation>
    </message>
    <message>
        <source>A SOAP client and the small service that it asks, both in this process.</source>
        <translation>A SOAP client and the small service that it asks, both in this process.</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Log</translation>
    </message>
    <message>
        <source>Every line goes through one bridge to the logger of the process.</source>
        <translation>Every line goes through one bridge to the logger of the process.</translation>
    </message>
</context>
<context>
    <name>ResourcesPage</name>
    <message>
        <source>Icons</source>
        <translation>Icons</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>Fonts</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Countries</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Rules</translation>
    </message>
    <message>
        <source>Style sheets</source>
        <translation>Style sheets</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Hover</source>
        <translation>Hover</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>Pressed</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Checked</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabled</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Focus</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Window</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>State</source>
        <translation>State</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Scale</translation>
    </message>
    <message>
        <source>Ground</source>
        <translation>Ground</translation>
    </message>
    <message>
        <source>Copy the path</source>
        <translation>Copy the path</translation>
    </message>
    <message>
        <source>The six preferred countries stand above the line, which cannot be chosen.</source>
        <translation>The six preferred countries stand above the line, which cannot be chosen.</translation>
    </message>
    <message numerus="yes">
        <source>%n rule(s) lead on from</source>
        <translation>
            <numerusform>%n rule leads on from</numerusform>
            <numerusform>%n rules lead on from</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n icon(s)</source>
        <translation>
            <numerusform>%n icon</numerusform>
            <numerusform>%n icons</numerusform>
        </translation>
    </message>
    <message>
        <source>No icon is chosen.</source>
        <translation>No icon is chosen.</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>Copied: %1</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Keep all settings in a temporary file, which is removed afterwards</source>
        <translation>Keep all settings in a temporary file, which is removed afterwards</translation>
    </message>
    <message>
        <source>Logged from the next start on: %1</source>
        <translation>Logged from the next start on: %1</translation>
    </message>
    <message>
        <source>Minimum log level</source>
        <translation>Minimum log level</translation>
    </message>
    <message>
        <source>Write a log, from the next start on</source>
        <translation>Write a log, from the next start on</translation>
    </message>
    <message>
        <source>Crash reports may be sent</source>
        <translation>Crash reports may be sent</translation>
    </message>
    <message>
        <source>Stored: on</source>
        <translation>Stored: on</translation>
    </message>
    <message>
        <source>Stored: off</source>
        <translation>Stored: off</translation>
    </message>
    <message>
        <source>Any value</source>
        <translation>Any value</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Key</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Write</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Removed: %1</source>
        <translation>Removed: %1</translation>
    </message>
    <message>
        <source>The file of the product family</source>
        <translation>The file of the product family</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Note to the other products</source>
        <translation>Note to the other products</translation>
    </message>
    <message>
        <source>Write into the file</source>
        <translation>Write into the file</translation>
    </message>
    <message>
        <source>Written into the file of the product family.</source>
        <translation>Written into the file of the product family.</translation>
    </message>
    <message>
        <source>The file of the product family cannot be written.</source>
        <translation>The file of the product family cannot be written.</translation>
    </message>
    <message>
        <source>Settings are kept in %1.</source>
        <translation>Settings are kept in %1.</translation>
    </message>
    <message>
        <source>Settings are kept in the system&apos;s own store again.</source>
        <translation>Settings are kept in the system&apos;s own store again.</translation>
    </message>
    <message>
        <source>Written and read back: %1 = %2</source>
        <translation>Written and read back: %1 = %2</translation>
    </message>
</context>
<context>
    <name>ShowcaseWindow</name>
    <message>
        <source>Trelio Frame – Showcase</source>
        <translation>Trelio Frame – Showcase</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Language</translation>
    </message>
    <message>
        <source>Show the code</source>
        <translation>Show the code</translation>
    </message>
    <message>
        <source>Code of this page</source>
        <translation>Code of this page</translation>
    </message>
</context>
<context>
    <name>StatePage</name>
    <message>
        <source>First launch on this profile</source>
        <translation>First launch on this profile</translation>
    </message>
    <message>
        <source>Mode of the last launch</source>
        <translation>Mode of the last launch</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>none yet</translation>
    </message>
    <message>
        <source>Identifier of this user</source>
        <translation>Identifier of this user</translation>
    </message>
    <message>
        <source>Reseller</source>
        <translation>Reseller</translation>
    </message>
    <message>
        <source>Results saved as actions</source>
        <translation>Results saved as actions</translation>
    </message>
    <message>
        <source>Crash reports may be sent</source>
        <translation>Crash reports may be sent</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Process</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>File version</source>
        <translation>File version</translation>
    </message>
    <message>
        <source>unknown: the file carries no version</source>
        <translation>unknown: the file carries no version</translation>
    </message>
    <message>
        <source>Process number</source>
        <translation>Process number</translation>
    </message>
    <message>
        <source>Folder of the Qt plug-ins</source>
        <translation>Folder of the Qt plug-ins</translation>
    </message>
    <message>
        <source>Crash counter</source>
        <translation>Crash counter</translation>
    </message>
    <message>
        <source>A module counts up before risky work and resets the counter after it. What is left after a crash is seen at the next start.</source>
        <translation>A module counts up before risky work and resets the counter after it. What is left after a crash is seen at the next start.</translation>
    </message>
    <message>
        <source>Runs that ended abnormally</source>
        <translation>Runs that ended abnormally</translation>
    </message>
    <message>
        <source>Count up</source>
        <translation>Count up</translation>
    </message>
    <message>
        <source>Counted up: work is under way.</source>
        <translation>Counted up: work is under way.</translation>
    </message>
    <message>
        <source>Reset the counter</source>
        <translation>Reset the counter</translation>
    </message>
    <message>
        <source>Reset: the work ended well.</source>
        <translation>Reset: the work ended well.</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>yes</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Data of the product</source>
        <translation>Data of the product</translation>
    </message>
    <message>
        <source>Cache on disk</source>
        <translation>Cache on disk</translation>
    </message>
    <message>
        <source>Cached token</source>
        <translation>Cached token</translation>
    </message>
    <message>
        <source>Packs of the user</source>
        <translation>Packs of the user</translation>
    </message>
    <message>
        <source>Favourite presets</source>
        <translation>Favourite presets</translation>
    </message>
    <message>
        <source>Calibration data</source>
        <translation>Calibration data</translation>
    </message>
    <message>
        <source>Crash reports</source>
        <translation>Crash reports</translation>
    </message>
    <message>
        <source>Crash reports under way</source>
        <translation>Crash reports under way</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Logs</translation>
    </message>
    <message>
        <source>Sample pictures</source>
        <translation>Sample pictures</translation>
    </message>
    <message>
        <source>Preferences of this computer</source>
        <translation>Preferences of this computer</translation>
    </message>
    <message>
        <source>Settings of the product family</source>
        <translation>Settings of the product family</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Refresh</translation>
    </message>
    <message>
        <source>Read again at %1.</source>
        <translation>Read again at %1.</translation>
    </message>
    <message>
        <source>Purpose</source>
        <translation>Purpose</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Path</translation>
    </message>
    <message>
        <source>Exists</source>
        <translation>Exists</translation>
    </message>
    <message>
        <source>not on this system</source>
        <translation>not on this system</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>yes</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
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
        <translation>Hover</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>Pressed</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Focus</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabled</translation>
    </message>
    <message>
        <source>Push buttons</source>
        <translation>Push buttons</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Default</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Checked</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>Flat</translation>
    </message>
    <message>
        <source>Check boxes and radio buttons</source>
        <translation>Check boxes and radio buttons</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Partly</source>
        <translation>Partly</translation>
    </message>
    <message>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>Old harbour at dusk</source>
        <translation>Old harbour at dusk</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Place</translation>
    </message>
    <message>
        <source>Name of the place</source>
        <translation>Name of the place</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Cannot be changed</source>
        <translation>Cannot be changed</translation>
    </message>
    <message>
        <source>Choices and numbers</source>
        <translation>Choices and numbers</translation>
    </message>
    <message>
        <source>Ranges and progress</source>
        <translation>Ranges and progress</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Lens</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>Focal length</translation>
    </message>
    <message>
        <source>Aperture</source>
        <translation>Aperture</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grid</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Rotate</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Rotate left</translation>
    </message>
</context>
<context>
    <name>ToolPanel</name>
    <message>
        <source>Horizon</source>
        <translation>Horizon</translation>
    </message>
    <message>
        <source>Drag a line along what should be level. With Shift it turns in steps of 15°.</source>
        <translation>Drag a line along what should be level. With Shift it turns in steps of 15°.</translation>
    </message>
    <message>
        <source>Keystoning</source>
        <translation>Keystoning</translation>
    </message>
    <message>
        <source>Lay both lines along edges that are upright in reality. They snap to the thirds of the picture and to each other; with Ctrl they do not.</source>
        <translation>Lay both lines along edges that are upright in reality. They snap to the thirds of the picture and to each other; with Ctrl they do not.</translation>
    </message>
    <message>
        <source>Distortion</source>
        <translation>Distortion</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Crop</translation>
    </message>
    <message>
        <source>Tilt-shift</source>
        <translation>Tilt-shift</translation>
    </message>
    <message>
        <source>What lies between the outer lines stays sharp.</source>
        <translation>What lies between the outer lines stays sharp.</translation>
    </message>
    <message>
        <source>No tool</source>
        <translation>No tool</translation>
    </message>
    <message>
        <source>Choose a tool at the left. The rules of the product decide what else a click switches on, switches off or applies.</source>
        <translation>Choose a tool at the left. The rules of the product decide what else a click switches on, switches off or applies.</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Accept</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Reset this tool</source>
        <translation>Reset this tool</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>From pincushion to barrel</source>
        <translation>From pincushion to barrel</translation>
    </message>
    <message>
        <source>Search, for example: canon 24-70</source>
        <translation>Search, for example: canon 24-70</translation>
    </message>
    <message>
        <source>Camera and lens</source>
        <translation>Camera and lens</translation>
    </message>
    <message>
        <source>Lenses found</source>
        <translation>Lenses found</translation>
    </message>
    <message>
        <source>Every word has to occur, in any order.</source>
        <translation>Every word has to occur, in any order.</translation>
    </message>
    <message>
        <source>Aspect ratio</source>
        <translation>Aspect ratio</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Blur</translation>
    </message>
    <message>
        <source>Width of the sharp area</source>
        <translation>Width of the sharp area</translation>
    </message>
    <message>
        <source>The calibration database cannot be read.</source>
        <translation>The calibration database cannot be read.</translation>
    </message>
    <message numerus="yes">
        <source>%n lens(es) found</source>
        <translation>
            <numerusform>%n lens found</numerusform>
            <numerusform>%n lenses found</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n millisecond(s)</source>
        <translation>
            <numerusform>%n millisecond</numerusform>
            <numerusform>%n milliseconds</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WebServicePage</name>
    <message>
        <source>Request</source>
        <translation>Request</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>Answer</translation>
    </message>
    <message>
        <source>The service has not been asked yet.</source>
        <translation>The service has not been asked yet.</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Amount</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unit</translation>
    </message>
    <message>
        <source>Ask the service</source>
        <translation>Ask the service</translation>
    </message>
    <message>
        <source>Fault: %1</source>
        <translation>Fault: %1</translation>
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
        <translation>Horizon</translation>
    </message>
    <message>
        <source>Keystoning</source>
        <translation>Keystoning</translation>
    </message>
    <message>
        <source>Distortion</source>
        <translation>Distortion</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Crop</translation>
    </message>
    <message>
        <source>Tilt-shift</source>
        <translation>Tilt-shift</translation>
    </message>
    <message numerus="yes">
        <source>%n rule(s) read. The rule behind a click is shown here.</source>
        <translation>
            <numerusform>%n rule read. The rule behind a click is shown here.</numerusform>
            <numerusform>%n rules read. The rule behind a click is shown here.</numerusform>
        </translation>
    </message>
    <message>
        <source>The rules cannot be read: %1</source>
        <translation>The rules cannot be read: %1</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Open…</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Reset all corrections</source>
        <translation>Reset all corrections</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grid</translation>
    </message>
    <message>
        <source>Preview of the current tool</source>
        <translation>Preview of the current tool</translation>
    </message>
    <message>
        <source>Compare before and after</source>
        <translation>Compare before and after</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Presets</translation>
    </message>
    <message>
        <source>Save the corrections as a preset</source>
        <translation>Save the corrections as a preset</translation>
    </message>
    <message>
        <source>Apply to the full picture</source>
        <translation>Apply to the full picture</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>Save…</translation>
    </message>
    <message>
        <source>Pack…</source>
        <translation>Pack…</translation>
    </message>
    <message>
        <source>Send to the recycle bin</source>
        <translation>Send to the recycle bin</translation>
    </message>
    <message>
        <source>No rule of %1 holds for %2.</source>
        <translation>No rule of %1 holds for %2.</translation>
    </message>
    <message>
        <source>Rule: %1</source>
        <translation>Rule: %1</translation>
    </message>
    <message>
        <source>Bring back from the recycle bin</source>
        <translation>Bring back from the recycle bin</translation>
    </message>
    <message>
        <source>No corrections yet</source>
        <translation>No corrections yet</translation>
    </message>
    <message>
        <source>Open a photo</source>
        <translation>Open a photo</translation>
    </message>
    <message>
        <source>Pictures (*.jpg *.jpeg *.png *.bmp)</source>
        <translation>Pictures (*.jpg *.jpeg *.png *.bmp)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 cannot be read: %2</translation>
    </message>
    <message>
        <source>Applying the corrections</source>
        <translation>Applying the corrections</translation>
    </message>
    <message>
        <source>Stopped. The picture is unchanged.</source>
        <translation>Stopped. The picture is unchanged.</translation>
    </message>
    <message>
        <source>%1 cannot be read any more.</source>
        <translation>%1 cannot be read any more.</translation>
    </message>
    <message>
        <source>Applied in %1 s</source>
        <translation>Applied in %1 s</translation>
    </message>
    <message>
        <source>Measure: %1</source>
        <translation>Measure: %1</translation>
    </message>
    <message>
        <source>Save the picture</source>
        <translation>Save the picture</translation>
    </message>
    <message>
        <source>Pictures (*.jpg *.png)</source>
        <translation>Pictures (*.jpg *.png)</translation>
    </message>
    <message>
        <source>Saving %1</source>
        <translation>Saving %1</translation>
    </message>
    <message>
        <source>%1 cannot be saved: %2</source>
        <translation>%1 cannot be saved: %2</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Saved: %1</translation>
    </message>
    <message>
        <source>Pack the saved pictures</source>
        <translation>Pack the saved pictures</translation>
    </message>
    <message>
        <source>Archives (*.zip)</source>
        <translation>Archives (*.zip)</translation>
    </message>
    <message>
        <source>Packing %1</source>
        <translation>Packing %1</translation>
    </message>
    <message>
        <source>Save a preset</source>
        <translation>Save a preset</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>My preset</source>
        <translation>My preset</translation>
    </message>
    <message>
        <source>Preset saved: %1</source>
        <translation>Preset saved: %1</translation>
    </message>
    <message>
        <source>Brought back: %1</source>
        <translation>Brought back: %1</translation>
    </message>
    <message>
        <source>Cannot be brought back: %1</source>
        <translation>Cannot be brought back: %1</translation>
    </message>
    <message>
        <source>In the recycle bin: %1</source>
        <translation>In the recycle bin: %1</translation>
    </message>
    <message>
        <source>Cannot be moved to the recycle bin: %1</source>
        <translation>Cannot be moved to the recycle bin: %1</translation>
    </message>
    <message>
        <source>Before and after are alike.</source>
        <translation>Before and after are alike.</translation>
    </message>
    <message>
        <source>Before and after differ.</source>
        <translation>Before and after differ.</translation>
    </message>
</context>
</TS>
