<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>VKD_H_TableWidget</name>
    <message><source>Copy</source><translation>Kopieren</translation></message>
    <message><source>Select All</source><translation>Alles auswählen</translation></message>
    <message><source>New</source><translation>Neu</translation></message>
    <message><source>Delete</source><translation>Löschen</translation></message>
</context>
<context>
    <name>VKD_H_TableWidgetBox</name>
    <message><source>New</source><translation>Neu</translation></message>
    <message><source>Delete</source><translation>Löschen</translation></message>
</context>
<context>
    <name>VKD_QT_Ok</name>
    <message><source>OK</source><translation>OK</translation></message>
    <message><source>Cancel</source><translation>Abbrechen</translation></message>
</context>
<context>
    <name>VKD_QT_TreeWidget</name>
    <message><source>Expand all</source><translation>Alle aufklappen</translation></message>
    <message><source>Collapse all</source><translation>Alle zuklappen</translation></message>
</context>
<context>
    <name>VKD_T_Help</name>
    <message><source>Help: %1</source><translation>Hilfe: %1</translation></message>
</context>
<context>
    <name>VKD_H_BoxedLineEdit</name>
    <message><source>%1 stays in use.</source><translation>%1 bleibt gültig.</translation></message>
</context>
<context>
    <name>VKD_H_LineEdit</name>
    <message><source>&quot;%1&quot; is not a number.</source><translation>„%1“ ist keine Zahl.</translation></message>
    <message><source>&quot;%1&quot; is not a whole number.</source><translation>„%1“ ist keine ganze Zahl.</translation></message>
    <message><source>A value is required.</source><translation>Ein Wert ist erforderlich.</translation></message>
    <message><source>The value must lie between %1 and %2.</source><translation>Der Wert muss zwischen %1 und %2 liegen.</translation></message>
    <message><source>The stored value &quot;%1&quot; is not a number. Enter a value or empty the field.</source><translation>Der gespeicherte Wert „%1“ ist keine Zahl. Geben Sie einen Wert ein oder leeren Sie das Feld.</translation></message>
</context>
<context>
    <name>VKD_A_ReinforcementCalculationDialog</name>
    <message><source>Reinforcement from Bars</source><translation>Bewehrung aus Stäben</translation></message>
    <message><source>Present value</source><translation>Bisheriger Wert</translation></message>
    <message><source>not set</source><translation>nicht gesetzt</translation></message>
    <message><source>Bar</source><translation>Stab</translation></message>
    <message><source>Spacing</source><translation>Stababstand</translation></message>
    <message><source>Bars per metre</source><translation>Stäbe je Meter</translation></message>
    <message><source> /m</source><translation> /m</translation></message>
    <message><source>Cross section of one bar</source><translation>Querschnitt eines Stabes</translation></message>
    <message><source>Layers</source><translation>Lagen</translation></message>
    <message><source>Reinforcement</source><translation>Bewehrung</translation></message>
    <message><source> cm²</source><translation> cm²</translation></message>
    <message><source>no bar chosen</source><translation>kein Stab gewählt</translation></message>
    <name>VKD_H_GroupListDialog</name>
    <message><source>Filter by number, name or title</source><translation>Nach Nummer, Name oder Titel filtern</translation></message>
    <message><source>Name</source><translation>Name</translation></message>
    <message><source>Group</source><translation>Gruppe</translation></message>
    <message><source>Title</source><translation>Titel</translation></message>
    <message><source>Note</source><translation>Hinweis</translation></message>
    <message><source>used in another row</source><translation>in einer anderen Zeile verwendet</translation></message>
    <message><source>secondary group</source><translation>Sekundärgruppe</translation></message>
    <message><source>group, not secondary</source><translation>Gruppe, keine Sekundärgruppe</translation></message>
    <message><source>not in the model</source><translation>nicht im Modell</translation></message>
    <message><source>Select all</source><translation>Alle auswählen</translation></message>
    <message><source>Select none</source><translation>Keine auswählen</translation></message>
    <message><source>Ticks the groups the filter shows</source><translation>Hakt die Gruppen an, die der Filter zeigt</translation></message>
    <message><source>Unticks the groups the filter shows</source><translation>Entfernt die Haken der Gruppen, die der Filter zeigt</translation></message>
    <message><source>%1 of %2 checked</source><translation>%1 von %2 ausgewählt</translation></message>
</context>
<context>
    <name>VKD_H_SelGRP_Dialog</name>
    <message><source>Group Selection</source><translation>Gruppenauswahl</translation></message>
    <message><source>Pick in model</source><translation>Im Modell wählen</translation></message>
    <message><source>Closes the dialogs so that you can pick the groups in the model view</source><translation>Schließt die Dialoge, damit Sie die Gruppen in der Modellansicht wählen können</translation></message>
</context>
<context>
    <name>VKD_H_SecondaryGroupDialog</name>
    <message><source>Secondary Group Selection</source><translation>Auswahl der Sekundärgruppen</translation></message>
</context>
<context>
    <name>VKD_H_ZOBDoc</name>
    <message><source>The project file %1 is open for reading only: %2.</source><translation>Die Projektdatei %1 ist nur zum Lesen geöffnet: %2.</translation></message>
    <message><source>The project file %1 is in use by another program, which still held it after %2 seconds.</source><translation>Die Projektdatei %1 wird von einem anderen Programm benutzt, das sie auch nach %2 Sekunden noch hielt.</translation></message>
    <message><source>The project file %1 could not be written: %2.</source><translation>Die Projektdatei %1 konnte nicht geschrieben werden: %2.</translation></message>
    <message><source>The project file %1 is in use by another program.</source><translation>Die Projektdatei %1 wird von einem anderen Programm benutzt.</translation></message>
    <message><source>The project file %1 is damaged: %2.</source><translation>Die Projektdatei %1 ist beschädigt: %2.</translation></message>
    <message><source>The project file %1 cannot be read: %2.</source><translation>Die Projektdatei %1 kann nicht gelesen werden: %2.</translation></message>
    <message><source>The project file %1 is damaged: its record tables are missing.</source><translation>Die Projektdatei %1 ist beschädigt: ihre Satztabellen fehlen.</translation></message>
    <message><source>The project file %1 is damaged: the integrity check failed.</source><translation>Die Projektdatei %1 ist beschädigt: die Integritätsprüfung schlug fehl.</translation></message>
    <message><source>The project file %1 does not exist.</source><translation>Die Projektdatei %1 existiert nicht.</translation></message>
    <message><source>The project file %1 is empty; it is not a project.</source><translation>Die Projektdatei %1 ist leer; sie ist kein Projekt.</translation></message>
    <message><source>it was opened for reading only</source><translation>sie wurde nur zum Lesen geöffnet</translation></message>
    <message><source>the file is write-protected</source><translation>die Datei ist schreibgeschützt</translation></message>
    <message><source>its folder is write-protected, so no journal can be kept beside it</source><translation>ihr Ordner ist schreibgeschützt, daher kann daneben kein Journal geführt werden</translation></message>
    <message><source>The project file %1 cannot be opened: %2.</source><translation>Die Projektdatei %1 kann nicht geöffnet werden: %2.</translation></message>
    <message><source>The project file %1 cannot be created: %2.</source><translation>Die Projektdatei %1 kann nicht angelegt werden: %2.</translation></message>
    <message><source>The project file %1 cannot be copied into memory.</source><translation>Die Projektdatei %1 kann nicht in den Speicher kopiert werden.</translation></message>
    <message><source>%1 is not a project file.</source><translation>%1 ist keine Projektdatei.</translation></message>
    <message><source>%1 is an SQLite database, but not a project file.</source><translation>%1 ist eine SQLite-Datenbank, aber keine Projektdatei.</translation></message>
    <message><source>%1 is a folder, not a project file.</source><translation>%1 ist ein Ordner, keine Projektdatei.</translation></message>
    <message><source>The project file %1 was left in the middle of a write; open it once for editing so that the unfinished write is undone.</source><translation>Die Projektdatei %1 wurde mitten in einem Schreibvorgang verlassen; öffnen Sie sie einmal zum Bearbeiten, damit der unvollendete Schreibvorgang rückgängig gemacht wird.</translation></message>
    <message><source>The project file %1 has format version %2; this program reads version %3 only.</source><translation>Die Projektdatei %1 hat die Formatversion %2; dieses Programm liest nur Version %3.</translation></message>
</context>
<context>
    <name>AnimatorView</name>
    <message><source>The project holds no model to show.</source><translation>Das Projekt enthält kein Modell zum Anzeigen.</translation></message>
    <message><source>Left drag turns the model, middle drag moves it, the wheel zooms. Choose &quot;User defined&quot; to turn it by hand.</source><translation>Ziehen mit der linken Maustaste dreht das Modell, mit der mittleren verschiebt es, das Mausrad zoomt. Wählen Sie &quot;Benutzerdefiniert&quot;, um es von Hand zu drehen.</translation></message>
</context>
</TS>
