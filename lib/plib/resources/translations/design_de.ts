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
<context>
    <name>dlgDistanceDirection</name>
    <message>
        <source>Direction and Distance</source>
        <translation>Richtung und Abstand</translation>
    </message>
    <message>
        <source>Rotation angle of reinforcement towards local x-axis</source>
        <translation>Drehwinkel der Bewehrung gegen die lokale x-Achse</translation>
    </message>
    <message>
        <source>Axial Distance</source>
        <translation>Achsabstand</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Upper</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Lower</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Principal Reinforcement</source>
        <translation>Hauptbewehrung</translation>
    </message>
    <message>
        <source>Cross Reinforcement</source>
        <translation>Querbewehrung</translation>
    </message>
    <message>
        <source>Third Layer</source>
        <translation>Dritte Lage</translation>
    </message>
    <message>
        <source>Third layer reinforcement (DDH)</source>
        <translation>Bewehrung der dritten Lage (DDH)</translation>
    </message>
    <message>
        <source>The local x-axis of the elements is the default direction of the principal reinforcement.</source>
        <translation>Die lokale x-Achse der Elemente ist die Standardrichtung der Hauptbewehrung.</translation>
    </message>
    <message>
        <source>Direction / Distance</source>
        <translation>Richtung / Abstand</translation>
    </message>
    <message>
        <source>Direction (-180 ... 180)</source>
        <translation>Richtung (-180 ... 180)</translation>
    </message>
    <message>
        <source>Distance of Principal Reinforcement (H)</source>
        <translation>Abstand der Hauptbewehrung (H)</translation>
    </message>
    <message>
        <source>Distance of Cross Reinforcement (DH)</source>
        <translation>Abstand der Querbewehrung (DH)</translation>
    </message>
    <message>
        <source>Midpoint</source>
        <translation>Mittelpunkt</translation>
    </message>
    <message>
        <source>Reference point for circular reinforcement</source>
        <translation>Bezugspunkt der kreisförmigen Bewehrung</translation>
    </message>
    <message>
        <source>X coordinate</source>
        <translation>X-Koordinate</translation>
    </message>
    <message>
        <source>Y coordinate</source>
        <translation>Y-Koordinate</translation>
    </message>
    <message>
        <source>Z coordinate</source>
        <translation>Z-Koordinate</translation>
    </message>
</context>
<context>
    <name>dlgReinforcement</name>
    <message>
        <source>Reinforcement</source>
        <translation>Bewehrung</translation>
    </message>
    <message>
        <source>Upper</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Lower</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Principal Reinforcement</source>
        <translation>Hauptbewehrung</translation>
    </message>
    <message>
        <source>Cross Reinforcement</source>
        <translation>Querbewehrung</translation>
    </message>
    <message>
        <source>Third Layer</source>
        <translation>Dritte Lage</translation>
    </message>
    <message>
        <source>Diameter</source>
        <translation>Durchmesser</translation>
    </message>
    <message>
        <source>Min. Reinforcement</source>
        <translation>Min. Bewehrung</translation>
    </message>
    <message>
        <source>Max. Reinforcement</source>
        <translation>Max. Bewehrung</translation>
    </message>
    <message>
        <source>max. Reinforcement</source>
        <translation>max. Bewehrung</translation>
    </message>
    <message>
        <source>Minimum Reinforcement</source>
        <translation>Mindestbewehrung</translation>
    </message>
    <message>
        <source>Maximum Reinforcement</source>
        <translation>Höchstbewehrung</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Min greater than Max is not allowed!</source>
        <translation>Min größer als Max ist nicht zulässig!</translation>
    </message>
</context>
<context>
    <name>dlgCrackControl</name>
    <message>
        <source>Crack Control</source>
        <translation>Rissbreitenbegrenzung</translation>
    </message>
    <message>
        <source>Upper</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Lower</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Principal Reinforcement</source>
        <translation>Hauptbewehrung</translation>
    </message>
    <message>
        <source>Cross Reinforcement</source>
        <translation>Querbewehrung</translation>
    </message>
    <message>
        <source>Third Layer</source>
        <translation>Dritte Lage</translation>
    </message>
    <message>
        <source>Crack width</source>
        <translation>Rissbreite</translation>
    </message>
    <message>
        <source>Steel stress</source>
        <translation>Stahlspannung</translation>
    </message>
    <message>
        <source>Permissible crack width for crack width control with or without direct calculation. Crack width control acc. to EN 1992-1-1, table 7.3N requires input for permissible steel stress.</source>
        <translation>Zulässige Rissbreite für die Begrenzung der Rissbreite mit oder ohne direkte Berechnung. Die Begrenzung der Rissbreite nach EN 1992-1-1, Tabelle 7.3N, erfordert die Eingabe der zulässigen Stahlspannung.</translation>
    </message>
</context>
</TS>
