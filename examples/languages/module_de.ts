<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Module</name>
    <message>
        <source>Horizon</source>
        <translation>Horizont</translation>
    </message>
</context>
</TS>
