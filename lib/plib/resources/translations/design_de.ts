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
    <message>
        <source>Selection</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Direction and Distance</source>
        <translation>Richtung und Abstand</translation>
    </message>
    <message>
        <source>Reinforcement</source>
        <translation>Bewehrung</translation>
    </message>
    <message>
        <source>Crack Control</source>
        <translation>Rissbreitenbegrenzung</translation>
    </message>
    <message>
        <source>Design parameter</source>
        <translation>Bemessungsparameter</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>No groups selected.
Possible loss of data!</source>
        <translation>Keine Gruppen ausgewählt.
Möglicher Datenverlust!</translation>
    </message>
</context>
<context>
    <name>DesignParameterTable</name>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
</TS>
