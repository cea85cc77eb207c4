<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name></name>
    <message id="navigation.buttons.next">
        <source>Next</source>
        <extracomment>The button that leads to the next slide</extracomment>
        <translation>Next</translation>
    </message>
    <message id="navigation.buttons.previous">
        <source>Previous</source>
        <extracomment>The button that leads to the slide before</extracomment>
        <translation>Previous</translation>
    </message>
    <message id="navigation.buttons.quit">
        <source>Quit</source>
        <extracomment>The button on the last slide, which ends the session</extracomment>
        <translation>Quit</translation>
    </message>
    <message id="content.container">
        <source>Content</source>
        <extracomment>What a screen reader calls a part of a slide that has no text</extracomment>
        <translation>Content</translation>
    </message>
    <message id="menu.application.quit">
        <source>Quit Velmar</source>
        <translation>Quit Velmar</translation>
    </message>
    <message id="menu.administrator">
        <source>Administrator</source>
        <translation>Administrator</translation>
    </message>
    <message id="menu.administrator.reload-interface-saving-variables">
        <source>Reload interface (saving variables)</source>
        <translation>Reload interface (saving variables)</translation>
    </message>
    <message id="menu.administrator.reload-interface">
        <source>Reload interface</source>
        <translation>Reload interface</translation>
    </message>
</context>
</TS>
