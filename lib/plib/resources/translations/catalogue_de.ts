<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>GraphicalOutputTreeWidget</name>
    <message>
        <source>File not found</source>
        <translation>Datei nicht gefunden</translation>
    </message>
    <message>
        <source>File %1 not found</source>
        <translation>Die Datei %1 wurde nicht gefunden</translation>
    </message>
    <message>
        <source>Couldn&apos;t open file</source>
        <translation>Datei konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Failed to open file %1</source>
        <translation>Die Datei %1 konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>No Entries in database!</source>
        <translation>Keine Einträge in der Datenbank!</translation>
    </message>
    <message>
        <source>Expand plots</source>
        <translation>Bilder aufklappen</translation>
    </message>
    <message>
        <source>Expand loadcases</source>
        <translation>Lastfälle aufklappen</translation>
    </message>
    <message>
        <source>Close loadcases</source>
        <translation>Lastfälle zuklappen</translation>
    </message>
    <message>
        <source>Close all entries</source>
        <translation>Alle Einträge zuklappen</translation>
    </message>
</context>
</TS>
