<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>AsyncPage</name>
    <message>
        <source>Move the slider: its many requests become one call.</source>
        <translation>Move the slider: its many requests become one call.</translation>
    </message>
    <message>
        <source>Not running.</source>
        <translation>Not running.</translation>
    </message>
    <message>
        <source>While the page waits, clicks are held back and delivered after the wait.</source>
        <translation>While the page waits, clicks are held back and delivered after the wait.</translation>
    </message>
    <message>
        <source>Clicks: 0</source>
        <translation>Clicks: 0</translation>
    </message>
    <message>
        <source>%1 items on a pool of two threads.</source>
        <translation>%1 items on a pool of two threads.</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Delayed calls</source>
        <translation>Delayed calls</translation>
    </message>
    <message>
        <source>Periodic call</source>
        <translation>Periodic call</translation>
    </message>
    <message>
        <source>Work items</source>
        <translation>Work items</translation>
    </message>
    <message>
        <source>Waits</source>
        <translation>Waits</translation>
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
    <message>
        <source>Requests: %1, calls: %2</source>
        <translation>Requests: %1, calls: %2</translation>
    </message>
    <message>
        <source>Every %1 ms.</source>
        <translation>Every %1 ms.</translation>
    </message>
    <message>
        <source>Stopped. Calls: %1</source>
        <translation>Stopped. Calls: %1</translation>
    </message>
    <message>
        <source>Calls: %1</source>
        <translation>Calls: %1</translation>
    </message>
    <message>
        <source>%1 of %2 items finished, %3 of them stopped.</source>
        <translation>%1 of %2 items finished, %3 of them stopped.</translation>
    </message>
    <message>
        <source>Waiting for %1 ms. Clicks are held back.</source>
        <translation>Waiting for %1 ms. Clicks are held back.</translation>
    </message>
    <message>
        <source>The wait is over. Clicks held back and delivered now: %1</source>
        <translation>The wait is over. Clicks held back and delivered now: %1</translation>
    </message>
    <message>
        <source>Waiting for a worker. Clicks are delivered at once.</source>
        <translation>Waiting for a worker. Clicks are delivered at once.</translation>
    </message>
    <message>
        <source>The worker has finished.</source>
        <translation>The worker has finished.</translation>
    </message>
    <message>
        <source>Clicks: %1</source>
        <translation>Clicks: %1</translation>
    </message>
</context>
<context>
    <name>DrawingPage</name>
    <message>
        <source>Drag across the picture to draw a line</source>
        <translation>Drag across the picture to draw a line</translation>
    </message>
    <message>
        <source>Picture with guide lines</source>
        <translation>Picture with guide lines</translation>
    </message>
    <message>
        <source>Insert adds a line and Delete removes it, Page Up and Page Down choose one, the arrow keys move its end, with Shift its start.</source>
        <translation>Insert adds a line and Delete removes it, Page Up and Page Down choose one, the arrow keys move its end, with Shift its start.</translation>
    </message>
    <message>
        <source>Stretch the pattern</source>
        <translation>Stretch the pattern</translation>
    </message>
    <message>
        <source>Remove all lines</source>
        <translation>Remove all lines</translation>
    </message>
    <message>
        <source>Lines: %1</source>
        <translation>Lines: %1</translation>
    </message>
</context>
<context>
    <name>FilesPage</name>
    <message>
        <source>File name</source>
        <translation>File name</translation>
    </message>
    <message>
        <source>As a name and as a path</source>
        <translation>As a name and as a path</translation>
    </message>
    <message>
        <source>Two paths</source>
        <translation>Two paths</translation>
    </message>
    <message>
        <source>As a whole and without suffix</source>
        <translation>As a whole and without suffix</translation>
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
        <source>Choose...</source>
        <translation>Choose...</translation>
    </message>
    <message>
        <source>Pack</source>
        <translation>Pack</translation>
    </message>
    <message>
        <source>Unpack and compare</source>
        <translation>Unpack and compare</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>The archive</source>
        <translation>The archive</translation>
    </message>
    <message>
        <source>Show in the file browser</source>
        <translation>Show in the file browser</translation>
    </message>
    <message>
        <source>Send to the recycle bin</source>
        <translation>Send to the recycle bin</translation>
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
        <source>equal</source>
        <translation>equal</translation>
    </message>
    <message>
        <source>different</source>
        <translation>different</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Choose a folder</translation>
    </message>
    <message>
        <source>Not done: cancelled, or a file can&apos;t be read or written.</source>
        <translation>Not done: cancelled, or a file can&apos;t be read or written.</translation>
    </message>
    <message>
        <source>Files packed: %1, archive: %2</source>
        <translation>Files packed: %1, archive: %2</translation>
    </message>
    <message>
        <source>Files unpacked: %1. Both folders are equal.</source>
        <translation>Files unpacked: %1. Both folders are equal.</translation>
    </message>
    <message>
        <source>The folders differ: %1</source>
        <translation>The folders differ: %1</translation>
    </message>
    <message>
        <source>The archive is in the recycle bin.</source>
        <translation>The archive is in the recycle bin.</translation>
    </message>
    <message>
        <source>There is no archive.</source>
        <translation>There is no archive.</translation>
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
</context>
<context>
    <name>LoggingPage</name>
    <message>
        <source>Log folder</source>
        <translation>Log folder</translation>
    </message>
    <message>
        <source>Minimum level</source>
        <translation>Minimum level</translation>
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
        <source>The log of this process</source>
        <translation>The log of this process</translation>
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
        <source>No answer yet</source>
        <translation>No answer yet</translation>
    </message>
    <message>
        <source>The last answer: %1</source>
        <translation>The last answer: %1</translation>
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
    <name>NativeDialogsPage</name>
    <message>
        <source>Pictures (*.jpg *.png *.tif);;All files (*)</source>
        <translation>Pictures (*.jpg *.png *.tif);;All files (*)</translation>
    </message>
    <message>
        <source>Open a file</source>
        <translation>Open a file</translation>
    </message>
    <message>
        <source>Open files</source>
        <translation>Open files</translation>
    </message>
    <message>
        <source>Save a file</source>
        <translation>Save a file</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Choose a folder</translation>
    </message>
    <message>
        <source>Choose a folder by its pictures</source>
        <translation>Choose a folder by its pictures</translation>
    </message>
    <message>
        <source>What was chosen</source>
        <translation>What was chosen</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>Logging</source>
        <translation>Logging</translation>
    </message>
    <message>
        <source>Every line goes through one bridge to the logger of the process.</source>
        <translation>Every line goes through one bridge to the logger of the process.</translation>
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
        <source>Storage</source>
        <translation>Storage</translation>
    </message>
    <message>
        <source>Every folder and file that the product knows.</source>
        <translation>Every folder and file that the product knows.</translation>
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
        <source>Asynchronous</source>
        <translation>Asynchronous</translation>
    </message>
    <message>
        <source>Delayed calls, work items and waits: the window answers while something is under way.</source>
        <translation>Delayed calls, work items and waits: the window answers while something is under way.</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>Names, sizes, archives, the recycle bin and the file browser.</source>
        <translation>Names, sizes, archives, the recycle bin and the file browser.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Appearance</translation>
    </message>
    <message>
        <source>Every standard widget under the product&apos;s style and style sheets.</source>
        <translation>Every standard widget under the product&apos;s style and style sheets.</translation>
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
        <source>Drawing tools</source>
        <translation>Drawing tools</translation>
    </message>
    <message>
        <source>Guide lines and cursors of the correction tools, on a picture painted by code.</source>
        <translation>Guide lines and cursors of the correction tools, on a picture painted by code.</translation>
    </message>
    <message>
        <source>Native dialogs</source>
        <translation>Native dialogs</translation>
    </message>
    <message>
        <source>The dialogs of the system for files and folders.</source>
        <translation>The dialogs of the system for files and folders.</translation>
    </message>
    <message>
        <source>Web service</source>
        <translation>Web service</translation>
    </message>
    <message>
        <source>A SOAP client and the small service that it asks, both in this process.</source>
        <translation>A SOAP client and the small service that it asks, both in this process.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Values are kept in</source>
        <translation>Values are kept in</translation>
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
        <source>a temporary file, gone at the end</source>
        <translation>a temporary file, gone at the end</translation>
    </message>
    <message>
        <source>the system&apos;s own store</source>
        <translation>the system&apos;s own store</translation>
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
        <source>Other buttons</source>
        <translation>Other buttons</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>A tool tip explains in one sentence.</source>
        <translation>A tool tip explains in one sentence.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Correct automatically</source>
        <translation>Correct automatically</translation>
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
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Partly</source>
        <translation>Partly</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Old harbour at dusk</source>
        <translation>Old harbour at dusk</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Title</translation>
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
        <source>Can be read only</source>
        <translation>Can be read only</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Camera</translation>
    </message>
    <message>
        <source>Cannot be changed</source>
        <translation>Cannot be changed</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Shortcut</translation>
    </message>
    <message>
        <source>Choices and numbers</source>
        <translation>Choices and numbers</translation>
    </message>
    <message>
        <source>Perspective</source>
        <translation>Perspective</translation>
    </message>
    <message>
        <source>Ranges and progress</source>
        <translation>Ranges and progress</translation>
    </message>
    <message>
        <source>Lenses</source>
        <translation>Lenses</translation>
    </message>
    <message>
        <source>History</source>
        <translation>History</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Metadata</translation>
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
        <source>Shape</source>
        <translation>Shape</translation>
    </message>
    <message>
        <source>Keystoning</source>
        <translation>Keystoning</translation>
    </message>
    <message>
        <source>Horizon</source>
        <translation>Horizon</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Crop</translation>
    </message>
    <message>
        <source>Distortion</source>
        <translation>Distortion</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grid</translation>
    </message>
    <message>
        <source>Guides</source>
        <translation>Guides</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Preview</translation>
    </message>
    <message>
        <source>Loupe</source>
        <translation>Loupe</translation>
    </message>
    <message>
        <source>Straight lines stay straight, and the tower stops leaning backwards.</source>
        <translation>Straight lines stay straight, and the tower stops leaning backwards.</translation>
    </message>
    <message>
        <source>Tilt-shift</source>
        <translation>Tilt-shift</translation>
    </message>
    <message>
        <source>Blurred at both ends</source>
        <translation>Blurred at both ends</translation>
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
        <source>Fit to window</source>
        <translation>Fit to window</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Actual size</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Rotate</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Rotate left</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>View</source>
        <translation>View</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Ready</translation>
    </message>
</context>
<context>
    <name>WebServicePage</name>
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
        <source>Request</source>
        <translation>Request</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>Answer</translation>
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
</TS>
