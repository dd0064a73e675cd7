<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Words</name>
    <message numerus="yes">
        <source>The file cannot keep %n text(s) as they are, the first of them %1 in %2: &quot;%3&quot; reads back as &quot;%4&quot;.</source>
        <translation><numerusform>The file cannot keep one text as it is, %1 in %2: &quot;%3&quot; reads back as &quot;%4&quot;.</numerusform><numerusform>The file cannot keep %n texts as they are, the first of them %1 in %2: &quot;%3&quot; reads back as &quot;%4&quot;.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n field(s) differ.</source>
        <translation><numerusform>%n field differs.</numerusform><numerusform>%n fields differ.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n of the numbers are no telephone numbers, the first of them &quot;%1&quot;. A logger may refuse them. Write the list?</source>
        <translation><numerusform>One of the numbers is no telephone number: &quot;%1&quot;. A logger may refuse it. Write the list?</numerusform><numerusform>%n of the numbers are no telephone numbers, the first of them &quot;%1&quot;. A logger may refuse them. Write the list?</numerusform></translation>
    </message>
</context>
</TS>
