<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name></name>
    <message id="navigation.buttons.next">
        <source>Next</source>
        <extracomment>The button that leads to the next slide</extracomment>
        <translation>Avanti</translation>
    </message>
    <message id="navigation.buttons.previous">
        <source>Previous</source>
        <extracomment>The button that leads to the slide before</extracomment>
        <translation>Indietro</translation>
    </message>
    <message id="navigation.buttons.quit">
        <source>Quit</source>
        <extracomment>The button on the last slide, which ends the session</extracomment>
        <translation>Esci</translation>
    </message>
    <message id="content.container">
        <source>Content</source>
        <extracomment>What a screen reader calls a part of a slide that has no text</extracomment>
        <translation>Contenuto</translation>
    </message>
    <message id="components.button.information">
        <source>More information</source>
        <extracomment>What a reader of the screen calls a round button with a question mark</extracomment>
        <translation>Ulteriori informazioni</translation>
    </message>
    <message id="components.button.untitled">
        <source>Button</source>
        <extracomment>What a reader of the screen calls a button without a title</extracomment>
        <translation>Pulsante</translation>
    </message>
    <message id="general.alerts.wait-for-complete-installation-before-quitting.title">
        <source>Some apps are not installed yet. You can quit once all of them are.</source>
        <extracomment>Text displayed when the user tries to quit the app although not all apps are installed</extracomment>
        <translation>Alcune app non sono ancora installate. Sarà possibile uscire quando lo saranno tutte.</translation>
    </message>
    <message id="general.alerts.wait-for-mandatory-files-before-quitting.title">
        <source>Some required files are not on this computer yet. You can quit once all of them are.</source>
        <extracomment>Text displayed when the user tries to quit the app although not mandatory files are present on device</extracomment>
        <translation>Alcuni file necessari non sono ancora su questo computer. Sarà possibile uscire quando ci saranno tutti.</translation>
    </message>
    <message id="components.alerts.wait-for-complete-installation-before-transitionning.title">
        <source>Some apps are not installed yet. You can continue once all of them are.</source>
        <extracomment>Text displayed when the user tries to go to the next slide although the AppMonitoring component in the current is marked as Mandatory and not all apps are installed</extracomment>
        <translation>Alcune app non sono ancora installate. Sarà possibile continuare quando lo saranno tutte.</translation>
    </message>
    <message id="menu.application.quit">
        <source>Quit Velmar</source>
        <extracomment>The entry of the application's menu that ends the session</extracomment>
        <translation>Esci da Velmar</translation>
    </message>
    <message id="menu.administrator">
        <source>Administrator</source>
        <extracomment>The title of the menu that only an administrator's configuration offers</extracomment>
        <translation>Amministratore</translation>
    </message>
    <message id="menu.administrator.reload-interface-saving-variables">
        <source>Reload interface (saving variables)</source>
        <extracomment>Reads the configuration again and leaves the variables with the values that they have</extracomment>
        <translation>Ricarica l’interfaccia (mantenendo le variabili)</translation>
    </message>
    <message id="menu.administrator.reload-interface">
        <source>Reload interface</source>
        <extracomment>Reads the configuration again and gives the variables their first values</extracomment>
        <translation>Ricarica l’interfaccia</translation>
    </message>
</context>
</TS>
