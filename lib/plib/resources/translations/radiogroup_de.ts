<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>VKD_P_RadioGroupImpl</name>
    <message>
        <source>Manually</source>
        <translation>Manuell</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Manually controlled</source>
        <translation>Manuell gesteuert</translation>
    </message>
    <message>
        <source>Manually controlled text output</source>
        <translation>Manuell gesteuerte Textausgabe</translation>
    </message>
    <message>
        <source>No text output</source>
        <translation>Keine Textausgabe</translation>
    </message>
    <message>
        <source>Smaller output without any text lists</source>
        <translation>Kleinere Ausgabe ohne Textlisten</translation>
    </message>
    <message>
        <source>Full text output</source>
        <translation>Vollständige Textausgabe</translation>
    </message>
    <message>
        <source>Extensive text output
useful to find errors or to compare variants</source>
        <translation>Ausführliche Textausgabe,
hilfreich bei der Fehlersuche oder beim Vergleich von Varianten</translation>
    </message>
    <message>
        <source>All Accidential</source>
        <translation>Alle außergewöhnlichen</translation>
    </message>
    <message>
        <source>All Fire</source>
        <translation>Alle Brandfälle</translation>
    </message>
    <message>
        <source>All Earthquake</source>
        <translation>Alle Erdbebenfälle</translation>
    </message>
    <message>
        <source>All Characteristic</source>
        <translation>Alle charakteristischen</translation>
    </message>
    <message>
        <source>All Frequent</source>
        <translation>Alle häufigen</translation>
    </message>
    <message>
        <source>All Quasi-Permanent</source>
        <translation>Alle quasi-ständigen</translation>
    </message>
    <message>
        <source>All Non-Frequent</source>
        <translation>Alle nicht-häufigen</translation>
    </message>
</context>
</TS>
