<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>FileListTableView</name>
    <message>
        <source>loading...</source>
        <translation>chargement...</translation>
    </message>
    <message>
        <source>Common::Next</source>
        <translation>Suivant</translation>
    </message>
</context>
</TS>
