<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Waymark</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Sample.title</source>
        <translation>Überschrift</translation>
    </message>
    <message numerus="yes">
        <source>%d photos are more than %@ away</source>
        <translation>
            <numerusform>Ein Foto ist mehr als %@ entfernt</numerusform>
            <numerusform>%d Fotos sind mehr als %@ entfernt</numerusform>
        </translation>
    </message>
    <message>
        <source>Untranslated</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
