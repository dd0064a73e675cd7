<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Words</name>
    <message numerus="yes">
        <source>%n field(s) differ.</source>
        <translation><numerusform>%n field differs.</numerusform><numerusform>%n fields differ.</numerusform></translation>
    </message>
</context>
</TS>
