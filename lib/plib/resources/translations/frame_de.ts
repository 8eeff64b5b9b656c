<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>VKD_P_Mix_UnitTest</name>
    <message>
        <source>Self-check of the library</source>
        <translation>Selbsttest der Bibliothek</translation>
    </message>
</context>
</TS>
