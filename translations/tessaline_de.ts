<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>FileListTableView</name>
    <message>
        <source>loading...</source>
        <translation>wird geladen...</translation>
    </message>
    <message>
        <source>Common::Next</source>
        <translation>Weiter</translation>
    </message>
</context>
</TS>
