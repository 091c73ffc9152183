<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CheckItemDelegate</name>
    <message>
        <source>Verify</source>
        <translation>Prüfen</translation>
    </message>
</context>
<context>
    <name>EditableTableView</name>
    <message>
        <source>Run</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Löschen</translation>
    </message>
</context>
</TS>
