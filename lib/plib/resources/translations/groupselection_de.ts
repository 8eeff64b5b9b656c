<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>dlgSelection</name>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Remaining Groups</source>
        <translation>Restliche Gruppen</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Secondary groups</source>
        <translation>Sekundärgruppen</translation>
    </message>
</context>
</TS>
