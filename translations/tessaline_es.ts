<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>FileListTableView</name>
    <message>
        <source>loading...</source>
        <translation>cargando...</translation>
    </message>
    <message>
        <source>Common::Next</source>
        <translation>Siguiente</translation>
    </message>
</context>
</TS>
