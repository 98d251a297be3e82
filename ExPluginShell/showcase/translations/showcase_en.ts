<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
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
    <message>
        <source>Perspective</source>
        <translation>Perspective</translation>
    </message>
</context>
<context>
    <name>Pages</name>
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
