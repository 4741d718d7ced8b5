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
    <message>
        <source>Database file (reset %@):</source>
        <translation>Timers last cleared: %@</translation>
    </message>
    <message>
        <source>Set storage database location.</source>
        <translation>Choose Database Location</translation>
    </message>
    <message>
        <source>The timer set &quot;%@&quot; will be deleted.</source>
        <translation>The project “%@” will be deleted.</translation>
    </message>
    <message>
        <source>Delete selected timer set?</source>
        <translation>Delete the selected project?</translation>
    </message>
    <message>
        <source>Show Time Window</source>
        <translation>Show Ticklog</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Preferences…</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>About Ticklog</translation>
    </message>
    <message>
        <source>Set Up...</source>
        <translation>Set Up…</translation>
    </message>
    <message>
        <source>Don&apos;t Ask Again</source>
        <translation>Don’t Ask Again</translation>
    </message>
    <message>
        <source>Are you sure you wish to clear the currently visible timers?</source>
        <translation>Do you want to clear all timers? Their times and rows are removed.</translation>
    </message>
    <message>
        <source>For Ticklog to function you must grant it access to your computer.</source>
        <translation>Ticklog needs the accessibility services of your desktop.</translation>
    </message>
    <message>
        <source>Follow these simple steps and Ticklog will be running in no time.</source>
        <translation>Follow these steps, and Ticklog can count.</translation>
    </message>
    <message>
        <source>Launch the Security &amp; Privacy panel in the System Preferences.</source>
        <translation>Open the settings of your desktop.</translation>
    </message>
    <message>
        <source>Select the Privacy tab and unlock the padlock to allow settings changes.</source>
        <translation>Go to the page about accessibility.</translation>
    </message>
    <message>
        <source>Select the Accessibility group and drag Ticklog into the list on the right.</source>
        <translation>Turn on the services for assistive programs.</translation>
    </message>
    <message>
        <source>Finally tick the checkbox associated with Ticklog and restart Ticklog.</source>
        <translation>Restart Ticklog.</translation>
    </message>
    <message>
        <source>Ticklog monitors the active time spent in each application. To enable this tracking you must give Ticklog permission to gather this data from the system.</source>
        <translation>Ticklog counts the time that you spend in each program. For that it needs your permission to ask the desktop.</translation>
    </message>
    <message>
        <source>Security protections built into OS X prevent monitoring the status of other applications without user authorization. In order to protect your privacy, this action will authorize Ticklog to track your applications while maintaining the normal system wide security precautions.</source>
        <translation>The desktop protects your privacy: no program may watch the others without your permission. This gives the permission to Ticklog; all other protections stay as they are.</translation>
    </message>
    <message>
        <source>Please choose the &apos;Enable access for assistive devices.&apos; checkbox in the Secuirty &gt; Privacy &gt; Accessibility system preferences.</source>
        <translation>Turn on accessibility in your desktop’s settings.</translation>
    </message>
    <message>
        <source>Please choose the &apos;Enable access for assistive devices.&apos; checkbox in the Universal Access system preferences.</source>
        <translation>Turn on accessibility in your desktop’s settings.</translation>
    </message>
    <message>
        <source>An error was encountered.</source>
        <translation>An error occurred.</translation>
    </message>
    <message>
        <source>Open Preference Panel</source>
        <translation>Open Settings</translation>
    </message>
    <message>
        <source>&amp;Block from the list</source>
        <translation>&amp;Leave out of reports</translation>
    </message>
    <message>
        <source>Are you sure you wish permanently delete the selected timing rows?</source>
        <translation>Their times are deleted with them. “Undo” brings them back.</translation>
    </message>
    <message>
        <source>Application Times</source>
        <translation>Program Times</translation>
    </message>
    <message>
        <source>&amp;Application:</source>
        <translation>&amp;Program:</translation>
    </message>
    <message>
        <source>Delete selected times</source>
        <translation>Delete the selected rows?</translation>
    </message>
    <message>
        <source>Timer still running.</source>
        <translation>The timer is still running.</translation>
    </message>
    <message>
        <source>There is a timer currently running. Ticklog must remain open in order to keep track of time. Are you sure you wish to quit?</source>
        <translation>Ticklog must stay open to count your time. Do you want to quit?</translation>
    </message>
    <message>
        <source>Remain Open</source>
        <translation>Keep Open</translation>
    </message>
</context>
</TS>
