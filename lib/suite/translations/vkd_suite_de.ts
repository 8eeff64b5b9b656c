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
    <message><source>&quot;%1&quot; is no number from %2 to %3; %4 stays in use.</source><translation>„%1“ ist keine Zahl von %2 bis %3; %4 bleibt gültig.</translation></message>
    <message><source>&quot;%1&quot; is no number; %2 stays in use.</source><translation>„%1“ ist keine Zahl; %2 bleibt gültig.</translation></message>
</context>
</TS>
