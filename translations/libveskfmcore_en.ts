<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>ApplicationDialog</name>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n file</numerusform>
            <numerusform>%n files</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>EntryDescribeThread</name>
    <message numerus="yes">
        <source>%n entry(s)</source>
        <translation>
            <numerusform>%n entry</numerusform>
            <numerusform>%n entries</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FileInfo</name>
    <message numerus="yes">
        <source>%1 in %n file(s)</source>
        <translation>
            <numerusform>%1 in %n file</numerusform>
            <numerusform>%1 in %n files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
</context>
</TS>
