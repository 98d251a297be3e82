<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>CAboutDlg</name>
    <message>
        <source>About Trelio Frame</source>
        <translation>About Trelio Frame</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>© Tolvan. All rights reserved.</source>
        <translation>© Tolvan. All rights reserved.</translation>
    </message>
    <message>
        <source>Perspective, horizon and lens corrections for your photos.</source>
        <translation>Perspective, horizon and lens corrections for your photos.</translation>
    </message>
    <message>
        <source>Made with:</source>
        <translation>Made with:</translation>
    </message>
    <message>
        <source>Licences on the web</source>
        <translation>Licences on the web</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>CAboutOstraDlg</name>
    <message>
        <source>About the Ostra Collection</source>
        <translation>About the Ostra Collection</translation>
    </message>
    <message>
        <source>with Trelio Frame %1</source>
        <translation>with Trelio Frame %1</translation>
    </message>
    <message>
        <source>© Tolvan. All rights reserved.</source>
        <translation>© Tolvan. All rights reserved.</translation>
    </message>
    <message>
        <source>A family of plug-ins for photographers. Its members share their language and their preferences, so that what you set in one holds in all.</source>
        <translation>A family of plug-ins for photographers. Its members share their language and their preferences, so that what you set in one holds in all.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>CLanguageManager</name>
    <message>
        <source>language name</source>
        <translation>English</translation>
    </message>
    <message>
        <source>ostra language number</source>
        <translation>2</translation>
    </message>
    <message>
        <source>language number</source>
        <translation>1033</translation>
    </message>
</context>
<context>
    <name>CLanguageTest</name>
    <message>
        <source>language name</source>
        <translation>English</translation>
    </message>
    <message>
        <source>ostra language number</source>
        <translation>2</translation>
    </message>
    <message>
        <source>language number</source>
        <translation>1033</translation>
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
        <translation>Close</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>Don&apos;t save</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Rotate</translation>
    </message>
    <message>
        <source>Don&apos;t quit</source>
        <translation>Don&apos;t quit</translation>
    </message>
    <message>
        <source>Quit without saving</source>
        <translation>Quit without saving</translation>
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
        <source>Question</source>
        <translation>Question</translation>
    </message>
</context>
<context>
    <name>CProgressBox</name>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Stopping…</translation>
    </message>
    <message>
        <source>A few seconds left</source>
        <translation>A few seconds left</translation>
    </message>
    <message numerus="yes">
        <source>About %n seconds left</source>
        <translation>
            <numerusform>About %n second left</numerusform>
            <numerusform>About %n seconds left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n minutes left</source>
        <translation>
            <numerusform>About %n minute left</numerusform>
            <numerusform>About %n minutes left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n hours left</source>
        <translation>
            <numerusform>About %n hour left</numerusform>
            <numerusform>About %n hours left</numerusform>
        </translation>
    </message>
    <message>
        <source>The work could not be completed.</source>
        <translation>The work could not be completed.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Windows small space message on drive %1</source>
        <translation>Trelio Frame cannot start since there is not enough free space on disk %1.
Please remove unnecessary files from the disk and try again.</translation>
    </message>
    <message>
        <source>Out of memory. Program will be closed.</source>
        <translation>Trelio Frame must close because there is not enough memory available.
Please close some other programs and try to start Trelio Frame again.</translation>
    </message>
    <message>
        <source>%1 has run out of memory. The application may now become unstable. Please close %2 and Photoshop, quit all other programs running, and try again.</source>
        <translation>%1 has run out of memory. The application may now become unstable. Please close %2 and Photoshop, quit all other programs running, and try again.</translation>
    </message>
    <message>
        <source>Unhandled exception. Program will be closed.</source>
        <translation>Trelio Frame must close because of an unhandled exception.</translation>
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
        <translation>not found</translation>
    </message>
    <message>
        <source>not a file</source>
        <translation>not a file</translation>
    </message>
    <message>
        <source>not a zip archive</source>
        <translation>not a zip archive</translation>
    </message>
    <message>
        <source>unsupported compression method</source>
        <translation>unsupported compression method</translation>
    </message>
    <message>
        <source>protected by a password</source>
        <translation>protected by a password</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>damaged</translation>
    </message>
    <message>
        <source>name not allowed</source>
        <translation>name not allowed</translation>
    </message>
    <message>
        <source>leads out of the folder</source>
        <translation>leads out of the folder</translation>
    </message>
    <message>
        <source>shares data with another entry</source>
        <translation>shares data with another entry</translation>
    </message>
    <message>
        <source>too large</source>
        <translation>too large</translation>
    </message>
    <message>
        <source>not enough disk space</source>
        <translation>not enough disk space</translation>
    </message>
    <message>
        <source>access denied</source>
        <translation>access denied</translation>
    </message>
    <message>
        <source>name used by a folder or a link</source>
        <translation>name used by a folder or a link</translation>
    </message>
    <message>
        <source>changed while it was read</source>
        <translation>changed while it was read</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>cannot be read</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>cannot be written</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>stopped</translation>
    </message>
    <message>
        <source>Stopped after %1 of %2 entries (%3).</source>
        <translation>Stopped after %1 of %2 entries (%3).</translation>
    </message>
    <message>
        <source>Checked %1 of %2 entries (%3).</source>
        <translation>Checked %1 of %2 entries (%3).</translation>
    </message>
    <message>
        <source>Packed %1 of %2 entries (%3).</source>
        <translation>Packed %1 of %2 entries (%3).</translation>
    </message>
    <message>
        <source>Unpacked %1 of %2 entries (%3).</source>
        <translation>Unpacked %1 of %2 entries (%3).</translation>
    </message>
    <message>
        <source>Checked %1 of %2 entries (%3). %4: %5.</source>
        <translation>Checked %1 of %2 entries (%3). %4: %5.</translation>
    </message>
    <message>
        <source>Packed %1 of %2 entries (%3). %4: %5.</source>
        <translation>Packed %1 of %2 entries (%3). %4: %5.</translation>
    </message>
    <message>
        <source>Unpacked %1 of %2 entries (%3). %4: %5.</source>
        <translation>Unpacked %1 of %2 entries (%3). %4: %5.</translation>
    </message>
</context>
</TS>
