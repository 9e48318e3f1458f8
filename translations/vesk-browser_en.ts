<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>FileWork</name>
    <message numerus="yes">
        <source>%Ln item(s)</source>
        <translation>
            <numerusform>%Ln item</numerusform>
            <numerusform>%Ln items</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message numerus="yes">
        <source>%Ln entry(s)</source>
        <translation>
            <numerusform>%Ln entry</numerusform>
            <numerusform>%Ln entries</numerusform>
        </translation>
    </message>
</context>
</TS>
