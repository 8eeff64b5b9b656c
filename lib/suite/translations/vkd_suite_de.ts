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
</TS>
