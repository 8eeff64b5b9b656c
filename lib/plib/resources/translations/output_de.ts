<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>VKD_P_WidgetGraphicalOutput</name>
    <message>
        <source>Engineering scale</source>
        <translation>Normmaßstab</translation>
    </message>
    <message>
        <source>Scale to fit</source>
        <translation>Formatfüllend</translation>
    </message>
    <message>
        <source>One per Page</source>
        <translation>Eines pro Blatt</translation>
    </message>
    <message>
        <source>Two per Page</source>
        <translation>Zwei pro Blatt</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>X/Y -Plane</source>
        <translation>X/Y -Ebene</translation>
    </message>
    <message>
        <source>X/Z -Plane</source>
        <translation>X/Z -Ebene</translation>
    </message>
    <message>
        <source>Y/Z -Plane</source>
        <translation>Y/Z -Ebene</translation>
    </message>
    <message>
        <source>3D Standard</source>
        <translation>3D Standard</translation>
    </message>
    <message>
        <source>User defined</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>Font Size (mm) : </source>
        <translation>Schriftgröße (mm) : </translation>
    </message>
    <message>
        <source>The size of the font</source>
        <translation>Die Größe der Schrift</translation>
    </message>
    <message>
        <source>Standard graphics</source>
        <translation>Standardgrafiken</translation>
    </message>
    <message>
        <source>Default Settings</source>
        <translation>Standardeinstellungen</translation>
    </message>
    <message>
        <source>All settings on this page will be set to the default</source>
        <translation>Alle Einstellungen dieser Seite werden auf die Vorgaben zurückgesetzt</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Maßstab</translation>
    </message>
    <message>
        <source>Page Splitting</source>
        <comment>Blattteilung</comment>
        <translation>Blattteilung</translation>
    </message>
    <message>
        <source>Page Format</source>
        <translation>Blattformat</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Iso Areas</source>
        <translation>Isoflächen</translation>
    </message>
    <message>
        <source>All area iso lines will represented as coloured filled iso areas</source>
        <translation>Alle Isolinien von Flächen werden als farbig gefüllte Isoflächen dargestellt</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Graphical Output</source>
        <translation>Grafische Ausgabe</translation>
    </message>
</context>
</TS>
