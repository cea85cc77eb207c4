<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name></name>
    <message id="navigation.buttons.next">
        <source>Next</source>
        <extracomment>The button that leads to the next slide</extracomment>
        <translation>Siguiente</translation>
    </message>
    <message id="navigation.buttons.previous">
        <source>Previous</source>
        <extracomment>The button that leads to the slide before</extracomment>
        <translation>Anterior</translation>
    </message>
    <message id="navigation.buttons.quit">
        <source>Quit</source>
        <extracomment>The button on the last slide, which ends the session</extracomment>
        <translation>Salir</translation>
    </message>
    <message id="content.container">
        <source>Content</source>
        <extracomment>What a screen reader calls a part of a slide that has no text</extracomment>
        <translation>Contenido</translation>
    </message>
    <message id="components.button.information">
        <source>More information</source>
        <extracomment>What a reader of the screen calls a round button with a question mark</extracomment>
        <translation>Más información</translation>
    </message>
    <message id="components.button.untitled">
        <source>Button</source>
        <extracomment>What a reader of the screen calls a button without a title</extracomment>
        <translation>Botón</translation>
    </message>
    <message id="general.alerts.wait-for-complete-installation-before-quitting.title">
        <source>Some apps are not installed yet. You can quit once all of them are.</source>
        <extracomment>Text displayed when the user tries to quit the app although not all apps are installed</extracomment>
        <translation>Algunas aplicaciones aún no están instaladas. Podrá salir cuando lo estén todas.</translation>
    </message>
    <message id="general.alerts.wait-for-mandatory-files-before-quitting.title">
        <source>Some required files are not on this computer yet. You can quit once all of them are.</source>
        <extracomment>Text displayed when the user tries to quit the app although not mandatory files are present on device</extracomment>
        <translation>Algunos archivos necesarios aún no están en este equipo. Podrá salir cuando estén todos.</translation>
    </message>
    <message id="components.alerts.wait-for-complete-installation-before-transitionning.title">
        <source>Some apps are not installed yet. You can continue once all of them are.</source>
        <extracomment>Text displayed when the user tries to go to the next slide although the AppMonitoring component in the current is marked as Mandatory and not all apps are installed</extracomment>
        <translation>Algunas aplicaciones aún no están instaladas. Podrá continuar cuando lo estén todas.</translation>
    </message>
    <message id="menu.application.quit">
        <source>Quit Velmar</source>
        <extracomment>The entry of the application's menu that ends the session</extracomment>
        <translation>Salir de Velmar</translation>
    </message>
    <message id="menu.administrator">
        <source>Administrator</source>
        <extracomment>The title of the menu that only an administrator's configuration offers</extracomment>
        <translation>Administrador</translation>
    </message>
    <message id="menu.administrator.reload-interface-saving-variables">
        <source>Reload interface (saving variables)</source>
        <extracomment>Reads the configuration again and leaves the variables with the values that they have</extracomment>
        <translation>Recargar la interfaz (conservando las variables)</translation>
    </message>
    <message id="menu.administrator.reload-interface">
        <source>Reload interface</source>
        <extracomment>Reads the configuration again and gives the variables their first values</extracomment>
        <translation>Recargar la interfaz</translation>
    </message>
</context>
</TS>
