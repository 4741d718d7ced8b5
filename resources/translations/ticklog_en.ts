<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Ticklog</name>
    <message>
        <source>Hide Dock Icon</source>
        <translation>Hide from Task Bar</translation>
    </message>
    <message>
        <source>Show Dock Icon</source>
        <translation>Show in Task Bar</translation>
    </message>
    <message>
        <source>Hide Menubar Item</source>
        <translation>Hide Tray Icon</translation>
    </message>
    <message>
        <source>Show Menubar Item</source>
        <translation>Show Tray Icon</translation>
    </message>
</context>
</TS>
