<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>DesignParameter</name>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Remaining Groups</source>
        <translation>Restliche Gruppen</translation>
    </message>
    <message>
        <source>No design</source>
        <translation>Keine Bemessung</translation>
    </message>
    <message>
        <source>Two Layers (orthogonal)</source>
        <translation>Zwei Lagen (orthogonal)</translation>
    </message>
    <message>
        <source>Two Layers</source>
        <translation>Zwei Lagen</translation>
    </message>
    <message>
        <source>Three Layers</source>
        <translation>Drei Lagen</translation>
    </message>
    <message>
        <source>Circular</source>
        <translation>Kreisförmig</translation>
    </message>
</context>
</TS>
