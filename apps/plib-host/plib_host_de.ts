<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>PlibHostDialog</name>
    <message>
        <source>Project %1</source>
        <translation>Projekt %1</translation>
    </message>
    <message>
        <source>Design Parameters</source>
        <translation>Bemessungsparameter</translation>
    </message>
    <message>
        <source>Graphical Output</source>
        <translation>Grafische Ausgabe</translation>
    </message>
    <message>
        <source>Page Splitting</source>
        <translation>Blattteilung</translation>
    </message>
    <message>
        <source>Load Cases</source>
        <translation>Lastfälle</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>The script could not be written to %1: %2. The project was saved.</source>
        <translation>Das Skript konnte nicht nach %1 geschrieben werden: %2. Das Projekt wurde gespeichert.</translation>
    </message>
    <message>
        <source>Nothing was saved. The dialog stays open so that nothing you entered is lost.</source>
        <translation>Es wurde nichts gespeichert. Der Dialog bleibt offen, damit nichts von Ihren Eingaben verloren geht.</translation>
    </message>
</context>
<context>
    <name>LoadCasePage</name>
    <message>
        <source>Load cases of the graphical output: all of them, or those ticked by hand.</source>
        <translation>Lastfälle der grafischen Ausgabe: alle, oder die von Hand angekreuzten.</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Verwenden</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
</context>
<context>
    <name>ScriptPreview</name>
    <message>
        <source>English keywords</source>
        <translation>Englische Schlüsselwörter</translation>
    </message>
    <message>
        <source>German keywords</source>
        <translation>Deutsche Schlüsselwörter</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Speichern unter...</translation>
    </message>
    <message>
        <source>No plot is chosen: the script is empty.</source>
        <translation>Kein Bild gewählt: das Skript ist leer.</translation>
    </message>
    <message>
        <source>Save Script</source>
        <translation>Skript speichern</translation>
    </message>
    <message>
        <source>TORVAL scripts (*.grav);;All files (*)</source>
        <translation>TORVAL-Skripte (*.grav);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The script could not be written to %1: %2</source>
        <translation>Das Skript konnte nicht nach %1 geschrieben werden: %2</translation>
    </message>
    <message>
        <source>1 line</source>
        <translation>1 Zeile</translation>
    </message>
    <message>
        <source>%1 lines</source>
        <translation>%1 Zeilen</translation>
    </message>
</context>
<context>
    <name>GroupPickDialog</name>
    <message>
        <source>Pick Groups in the Model</source>
        <translation>Gruppen im Modell wählen</translation>
    </message>
    <message>
        <source>Choose the groups for the row in the model: click, Ctrl-click or drag a rectangle over them (a right drag turns the model), or in the list.</source>
        <translation>Wählen Sie die Gruppen der Zeile im Modell: Klick, Strg-Klick oder ein Rechteck darüber ziehen (Ziehen mit der rechten Maustaste dreht das Modell), oder in der Liste.</translation>
    </message>
</context>
<context>
    <name>ContentTagSwitch</name>
    <message>
        <source>What the model holds</source>
        <translation>Was das Modell enthält</translation>
    </message>
    <message>
        <source>Also prestressing</source>
        <translation>Auch Vorspannung</translation>
    </message>
    <message>
        <source>Also section cuts</source>
        <translation>Auch Schnitte</translation>
    </message>
    <message>
        <source>Also bricks</source>
        <translation>Auch Volumenelemente</translation>
    </message>
    <message>
        <source>Plots offered</source>
        <translation>Angebotene Grafiken</translation>
    </message>
    <message>
        <source>Plots of results the model does not show by itself, such as those of a separate prestressing run, are offered only when chosen here.</source>
        <translation>Grafiken von Ergebnissen, die das Modell nicht selbst zeigt, etwa die einer eigenen Berechnung der Vorspannung, werden nur angeboten, wenn sie hier gewählt sind.</translation>
    </message>
</context>
</TS>
