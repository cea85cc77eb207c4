<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name></name>
    <message id="navigation.buttons.next">
        <source>Next</source>
        <extracomment>The button that leads to the next slide</extracomment>
        <translation>Avançar</translation>
    </message>
    <message id="navigation.buttons.previous">
        <source>Previous</source>
        <extracomment>The button that leads to the slide before</extracomment>
        <translation>Voltar</translation>
    </message>
    <message id="navigation.buttons.quit">
        <source>Quit</source>
        <extracomment>The button on the last slide, which ends the session</extracomment>
        <translation>Sair</translation>
    </message>
    <message id="content.container">
        <source>Content</source>
        <extracomment>What a screen reader calls a part of a slide that has no text</extracomment>
        <translation>Conteúdo</translation>
    </message>
    <message id="components.button.information">
        <source>More information</source>
        <extracomment>What a reader of the screen calls a round button with a question mark</extracomment>
        <translation>Mais informações</translation>
    </message>
    <message id="components.button.untitled">
        <source>Button</source>
        <extracomment>What a reader of the screen calls a button without a title</extracomment>
        <translation>Botão</translation>
    </message>
    <message id="general.alerts.wait-for-complete-installation-before-quitting.title">
        <source>Some apps are not installed yet. You can quit once all of them are.</source>
        <extracomment>Text displayed when the user tries to quit the app although not all apps are installed</extracomment>
        <translation>Alguns programas ainda não estão instalados. Será possível sair quando todos estiverem.</translation>
    </message>
    <message id="general.alerts.wait-for-mandatory-files-before-quitting.title">
        <source>Some required files are not on this computer yet. You can quit once all of them are.</source>
        <extracomment>Text displayed when the user tries to quit the app although not mandatory files are present on device</extracomment>
        <translation>Alguns arquivos necessários ainda não estão neste computador. Será possível sair quando todos estiverem.</translation>
    </message>
    <message id="components.alerts.wait-for-complete-installation-before-transitionning.title">
        <source>Some apps are not installed yet. You can continue once all of them are.</source>
        <extracomment>Text displayed when the user tries to go to the next slide although the AppMonitoring component in the current is marked as Mandatory and not all apps are installed</extracomment>
        <translation>Alguns programas ainda não estão instalados. Será possível continuar quando todos estiverem.</translation>
    </message>
    <message id="menu.application.quit">
        <source>Quit Velmar</source>
        <extracomment>The entry of the application's menu that ends the session</extracomment>
        <translation>Sair do Velmar</translation>
    </message>
    <message id="menu.administrator">
        <source>Administrator</source>
        <extracomment>The title of the menu that only an administrator's configuration offers</extracomment>
        <translation>Administrador</translation>
    </message>
    <message id="menu.administrator.reload-interface-saving-variables">
        <source>Reload interface (saving variables)</source>
        <extracomment>Reads the configuration again and leaves the variables with the values that they have</extracomment>
        <translation>Recarregar a interface (mantendo as variáveis)</translation>
    </message>
    <message id="menu.administrator.reload-interface">
        <source>Reload interface</source>
        <extracomment>Reads the configuration again and gives the variables their first values</extracomment>
        <translation>Recarregar a interface</translation>
    </message>
</context>
</TS>
