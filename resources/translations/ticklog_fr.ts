<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Ticklog</name>
    <message>
        <source>All Timers</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>New Project</source>
        <translation>Nouveau projet</translation>
    </message>
    <message>
        <source> (Frozen %@)</source>
        <translation> (Figé le %@)</translation>
    </message>
    <message>
        <source>%ld hour</source>
        <translation>%ld heure</translation>
    </message>
    <message>
        <source>%ld hour-2</source>
        <translation>%ld heures</translation>
    </message>
    <message>
        <source>%ld hours</source>
        <translation>%ld heures</translation>
    </message>
    <message>
        <source>%ld minute</source>
        <translation>%ld minute</translation>
    </message>
    <message>
        <source>%ld minute-2</source>
        <translation>%ld minutes</translation>
    </message>
    <message>
        <source>%ld minutes</source>
        <translation>%ld minutes</translation>
    </message>
    <message>
        <source>%ld second-0</source>
        <translation>%ld seconde</translation>
    </message>
    <message>
        <source>%ld second</source>
        <translation>%ld seconde</translation>
    </message>
    <message>
        <source>%ld second-2</source>
        <translation>%ld secondes</translation>
    </message>
    <message>
        <source>%ld seconds</source>
        <translation>%ld secondes</translation>
    </message>
    <message>
        <source>Database file (reset %@):</source>
        <translation>Dernière remise à zéro des chronomètres : %@</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>This Wayland desktop does not tell other programs which window is in front, so no time can be counted.</source>
        <translation>Ce bureau Wayland n’indique pas aux autres programmes quelle fenêtre est au premier plan : aucun temps ne peut donc être compté.</translation>
    </message>
    <message>
        <source>There is no window system that tells which window is in front.</source>
        <translation>Aucun système de fenêtrage n’indique quelle fenêtre est au premier plan.</translation>
    </message>
    <message>
        <source>Archive Folder</source>
        <translation>Dossier d’archivage</translation>
    </message>
    <message>
        <source>Export to CSV</source>
        <translation>Exporter en CSV</translation>
    </message>
    <message>
        <source>Ticklog Times</source>
        <translation>Temps Ticklog</translation>
    </message>
    <message>
        <source>Replacing a file</source>
        <translation>Remplacement d’un fichier</translation>
    </message>
    <message>
        <source>A file with this name already exists.</source>
        <translation>Un fichier portant ce nom existe déjà.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Exporting…</source>
        <translation>Exportation…</translation>
    </message>
    <message>
        <source>No Label</source>
        <translation>Aucune couleur</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Violet</translation>
    </message>
    <message>
        <source>Label:</source>
        <translation>Couleur :</translation>
    </message>
    <message>
        <source>Where Ticklog is found</source>
        <translation>Où trouver Ticklog</translation>
    </message>
    <message>
        <source>Hide Dock Icon</source>
        <translation>Ne pas afficher dans la barre des tâches</translation>
    </message>
    <message>
        <source>Show Dock Icon</source>
        <translation>Afficher dans la barre des tâches</translation>
    </message>
    <message>
        <source>Hide Menubar Item</source>
        <translation>Ne pas afficher dans la zone de notification</translation>
    </message>
    <message>
        <source>Show Menubar Item</source>
        <translation>Afficher dans la zone de notification</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>&amp;Import Database…</source>
        <translation>&amp;Importer une base de données…</translation>
    </message>
    <message>
        <source>&amp;Save a Copy As…</source>
        <translation>Enregistrer une &amp;copie sous…</translation>
    </message>
    <message>
        <source>&amp;Choose Database Location…</source>
        <translation>C&amp;hoisir l’emplacement de la base de données…</translation>
    </message>
    <message>
        <source>&amp;Restore Default Database Location</source>
        <translation>&amp;Rétablir l’emplacement par défaut</translation>
    </message>
    <message>
        <source>Show &amp;Database in File Manager</source>
        <translation>&amp;Afficher la base dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>E&amp;xport Shown Timers to CSV…</source>
        <translation>E&amp;xporter les chronomètres affichés en CSV…</translation>
    </message>
    <message>
        <source>Export &amp;All Timers to CSV…</source>
        <translation>Exporter &amp;tous les chronomètres en CSV…</translation>
    </message>
    <message>
        <source>C&amp;lose Window</source>
        <translation>&amp;Fermer la fenêtre</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Copy &amp;Summary Time</source>
        <translation>Copier le temps &amp;total</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>Re&amp;nommer</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Tout sé&amp;lectionner</translation>
    </message>
    <message>
        <source>D&amp;eselect All</source>
        <translation>T&amp;out désélectionner</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>Rec&amp;hercher</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Préférences…</translation>
    </message>
    <message>
        <source>Edit Ru&amp;les…</source>
        <translation>Modifier les rè&amp;gles…</translation>
    </message>
    <message>
        <source>&amp;Expand All</source>
        <translation>&amp;Tout développer</translation>
    </message>
    <message>
        <source>&amp;Projects</source>
        <translation>&amp;Projets</translation>
    </message>
    <message>
        <source>&amp;New Project</source>
        <translation>&amp;Nouveau projet</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>&amp;Descendre</translation>
    </message>
    <message>
        <source>&amp;Freeze All Timers of the Project</source>
        <translation>&amp;Figer tous les chronomètres du projet</translation>
    </message>
    <message>
        <source>D&amp;elete Project…</source>
        <translation>&amp;Supprimer le projet…</translation>
    </message>
    <message>
        <source>&amp;Freeze</source>
        <translation>&amp;Figer</translation>
    </message>
    <message>
        <source>Clear Timers</source>
        <translation>Remettre les chronomètres à zéro</translation>
    </message>
    <message>
        <source>&amp;About Ticklog</source>
        <translation>À &amp;propos de Ticklog</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Aff&amp;ichage</translation>
    </message>
    <message>
        <source>&amp;Project</source>
        <translation>&amp;Projet</translation>
    </message>
    <message>
        <source>&amp;Timer</source>
        <translation>&amp;Chronomètre</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barre d’outils</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>At least</source>
        <translation>Au moins</translation>
    </message>
    <message>
        <source>Leaves out timers that have less time than this</source>
        <translation>Masque les chronomètres dont le temps est inférieur</translation>
    </message>
    <message>
        <source>Copies the sum in words</source>
        <translation>Copie le total avec les unités en toutes lettres</translation>
    </message>
    <message>
        <source>%@ (build %@)</source>
        <translation>%@ (build %@)</translation>
    </message>
    <message>
        <source>Are you sure you wish to clear the currently visible timers?</source>
        <translation>Voulez-vous remettre tous les chronomètres à zéro ? Leurs temps et leurs lignes seront retirés.</translation>
    </message>
    <message>
        <source>Set storage database location.</source>
        <translation>Choisir l’emplacement de la base de données</translation>
    </message>
    <message>
        <source>The database could not be copied.</source>
        <translation>La base de données n’a pas pu être copiée.</translation>
    </message>
    <message>
        <source>No timer matches the search.</source>
        <translation>Aucun chronomètre ne correspond à la recherche.</translation>
    </message>
    <message>
        <source>This project is empty. Drag timers from “All Timers” onto it.</source>
        <translation>Ce projet est vide. Faites-y glisser des chronomètres depuis « Tout ».</translation>
    </message>
    <message>
        <source>No timer reaches the minimum time.</source>
        <translation>Aucun chronomètre n’atteint le temps minimum.</translation>
    </message>
    <message>
        <source>Press Start and carry on working. Your programs will appear here.</source>
        <translation>Cliquez sur «&#xa0;Démarrer&#xa0;» et continuez à travailler&#xa0;: les programmes utilisés apparaîtront ici.</translation>
    </message>
    <message>
        <source>Replacing timers</source>
        <translation>Remplacement des chronomètres</translation>
    </message>
    <message>
        <source>Importing timers will replace all current timers. Your current timers will be saved in a backup file next to the Ticklog database.</source>
        <translation>L’importation remplacera tous les chronomètres actuels. Ceux-ci seront enregistrés dans un fichier de sauvegarde à côté de la base de données Ticklog.</translation>
    </message>
    <message>
        <source>Import Database</source>
        <translation>Importer une base de données</translation>
    </message>
    <message>
        <source>Save a Copy As</source>
        <translation>Enregistrer une copie sous</translation>
    </message>
    <message>
        <source>The copy could not be saved.</source>
        <translation>La copie n’a pas pu être enregistrée.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projet</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Sélection</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Trouvés</translation>
    </message>
    <message>
        <source>Found in selection</source>
        <translation>Trouvés dans la sélection</translation>
    </message>
    <message>
        <source>total
%@</source>
        <translation>total
%@</translation>
    </message>
    <message>
        <source>project
%@</source>
        <translation>projet
%@</translation>
    </message>
    <message>
        <source>selected
%@</source>
        <translation>sélection
%@</translation>
    </message>
    <message>
        <source>found
%@</source>
        <translation>trouvés
%@</translation>
    </message>
    <message>
        <source>frozen</source>
        <translation>figé</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Time Spent</source>
        <translation>Temps passé</translation>
    </message>
    <message>
        <source>&amp;Block from the list</source>
        <translation>&amp;Omettre dans les rapports</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>&amp;New name:</source>
        <translation>&amp;Nouveau nom&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Categories:</source>
        <translation>&amp;Catégories&#xa0;:</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Règle</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Catégories</translation>
    </message>
    <message>
        <source>Press comma or Enter to add; press Delete to remove.</source>
        <translation>Virgule ou Entrée pour ajouter, Suppr pour retirer.</translation>
    </message>
    <message>
        <source>&amp;Application:</source>
        <translation>&amp;Programme :</translation>
    </message>
    <message>
        <source>&amp;Archive and clear all timers by schedule</source>
        <translation>&amp;Archiver et remettre à zéro tous les chronomètres périodiquement</translation>
    </message>
    <message>
        <source>At the chosen time all timers are saved to a file named after the day, and start again from zero.</source>
        <translation>À l’heure choisie, tous les chronomètres sont enregistrés dans un fichier portant la date du jour, puis repartent de zéro.</translation>
    </message>
    <message>
        <source>Data&amp;base:</source>
        <translation>&amp;Base de données&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Choisir…</translation>
    </message>
    <message>
        <source>&amp;Restore Default</source>
        <translation>&amp;Rétablir par défaut</translation>
    </message>
    <message>
        <source>&amp;Show in File Manager</source>
        <translation>Afficher dans le &amp;gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>CSV table</source>
        <translation>Tableau CSV</translation>
    </message>
    <message>
        <source>Ticklog database</source>
        <translation>Base de données Ticklog</translation>
    </message>
    <message>
        <source>CSV table and Ticklog database</source>
        <translation>Tableau CSV et base de données Ticklog</translation>
    </message>
    <message>
        <source>Weekdays of the archive</source>
        <translation>Jours d’archivage</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>C&amp;hoisir…</translation>
    </message>
    <message>
        <source>&amp;Time of day:</source>
        <translation>He&amp;ure&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Weekdays:</source>
        <translation>&amp;Jours&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format&#xa0;:</translation>
    </message>
    <message>
        <source>F&amp;older:</source>
        <translation>&amp;Dossier&#xa0;:</translation>
    </message>
    <message>
        <source>No day is chosen: nothing is archived.</source>
        <translation>Aucun jour n’est choisi : rien n’est archivé.</translation>
    </message>
    <message>
        <source>Archived on: </source>
        <translation>Archivage&#xa0;: </translation>
    </message>
    <message>
        <source>Task bar and system tray</source>
        <translation>Barre des tâches et zone de notification</translation>
    </message>
    <message>
        <source>Task bar</source>
        <translation>Barre des tâches</translation>
    </message>
    <message>
        <source>System tray</source>
        <translation>Zone de notification</translation>
    </message>
    <message>
        <source>Include &amp;idle time</source>
        <translation>&amp;Inclure le temps d’inactivité</translation>
    </message>
    <message>
        <source>Include time spent in &amp;Ticklog</source>
        <translation>Inclure le temps passé dans &amp;Ticklog</translation>
    </message>
    <message>
        <source>Include &amp;seconds</source>
        <translation>Inclure les &amp;secondes</translation>
    </message>
    <message>
        <source>Total:</source>
        <translation>Total&#xa0;:</translation>
    </message>
    <message>
        <source>Copied times:</source>
        <translation>Temps copiés&#xa0;:</translation>
    </message>
    <message>
        <source>Include idle time in the total</source>
        <translation>Inclure le temps d’inactivité dans le total</translation>
    </message>
    <message>
        <source>Include time spent in Ticklog in the total</source>
        <translation>Inclure le temps passé dans Ticklog dans le total</translation>
    </message>
    <message>
        <source>Include seconds in copied times</source>
        <translation>Inclure les secondes dans les temps copiés</translation>
    </message>
    <message>
        <source>Start Ticklog when I &amp;log in</source>
        <translation>&amp;Lancer Ticklog à l’ouverture de session</translation>
    </message>
    <message>
        <source>&amp;Count time without input as idle</source>
        <translation>&amp;Compter le temps sans clavier ni souris comme inactivité</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>Minutes without input until time counts as idle</source>
        <translation>Minutes sans clavier ni souris avant que le temps compte comme inactivité</translation>
    </message>
    <message>
        <source>Idle time:</source>
        <translation>Inactivité&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;After:</source>
        <translation>&amp;Après&#xa0;:</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>&amp;Edit…</source>
        <translation>&amp;Modifier…</translation>
    </message>
    <message>
        <source>D&amp;uplicate…</source>
        <translation>&amp;Dupliquer…</translation>
    </message>
    <message>
        <source>&amp;Delete…</source>
        <translation>&amp;Supprimer…</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Règles</translation>
    </message>
    <message>
        <source>&amp;Add…</source>
        <translation>&amp;Ajouter…</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Active</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Archive</source>
        <translation>Archivage</translation>
    </message>
    <message>
        <source>Delete the rule?</source>
        <translation>Supprimer la règle&#xa0;?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Conserver</translation>
    </message>
    <message>
        <source>Category. Press Delete to remove it.</source>
        <translation>Catégorie. Suppr pour la retirer.</translation>
    </message>
    <message>
        <source>For Ticklog to function you must grant it access to your computer.</source>
        <translation>Ticklog a besoin des services d’accessibilité de votre bureau.</translation>
    </message>
    <message>
        <source>Follow these simple steps and Ticklog will be running in no time.</source>
        <translation>Suivez ces étapes, et Ticklog pourra compter.</translation>
    </message>
    <message>
        <source>Launch the Security &amp; Privacy panel in the System Preferences.</source>
        <translation>Ouvrez les paramètres de votre bureau.</translation>
    </message>
    <message>
        <source>Select the Privacy tab and unlock the padlock to allow settings changes.</source>
        <translation>Allez à la page de l’accessibilité.</translation>
    </message>
    <message>
        <source>Select the Accessibility group and drag Ticklog into the list on the right.</source>
        <translation>Activez les services pour les programmes d’assistance.</translation>
    </message>
    <message>
        <source>Finally tick the checkbox associated with Ticklog and restart Ticklog.</source>
        <translation>Redémarrez Ticklog.</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Redémarrer</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Étape actuelle</translation>
    </message>
    <message>
        <source>Ticklog monitors the active time spent in each application. To enable this tracking you must give Ticklog permission to gather this data from the system.</source>
        <translation>Ticklog compte le temps que vous passez dans chaque programme. Pour cela, il lui faut votre permission d’interroger le bureau.</translation>
    </message>
    <message>
        <source>Security protections built into OS X prevent monitoring the status of other applications without user authorization. In order to protect your privacy, this action will authorize Ticklog to track your applications while maintaining the normal system wide security precautions.</source>
        <translation>Le bureau protège votre vie privée : aucun programme ne peut observer les autres sans votre permission. Ceci la donne à Ticklog ; toutes les autres protections restent en place.</translation>
    </message>
    <message>
        <source>Authorize Ticklog</source>
        <translation>Autoriser Ticklog</translation>
    </message>
    <message>
        <source>Cancel Start</source>
        <translation>Annuler le démarrage</translation>
    </message>
    <message>
        <source>Please choose the &apos;Enable access for assistive devices.&apos; checkbox in the Secuirty &gt; Privacy &gt; Accessibility system preferences.</source>
        <translation>Activez l’accessibilité dans les paramètres de votre bureau.</translation>
    </message>
    <message>
        <source>Please choose the &apos;Enable access for assistive devices.&apos; checkbox in the Universal Access system preferences.</source>
        <translation>Activez l’accessibilité dans les paramètres de votre bureau.</translation>
    </message>
    <message>
        <source>An error was encountered.</source>
        <translation>Une erreur s’est produite.</translation>
    </message>
    <message>
        <source>Open Preference Panel</source>
        <translation>Ouvrir les paramètres</translation>
    </message>
    <message>
        <source>Ticklog is counting</source>
        <translation>Ticklog compte</translation>
    </message>
    <message>
        <source>Ticklog is paused</source>
        <translation>Ticklog est en pause</translation>
    </message>
    <message>
        <source>Free software under the MIT licence.</source>
        <translation>Logiciel libre sous licence MIT.</translation>
    </message>
    <message>
        <source>There is no system tray.</source>
        <translation>Il n’y a pas de zone de notification.</translation>
    </message>
    <message>
        <source>Ticklog therefore stays in the task bar, and its menu is in the main window. It moves to the tray as soon as there is one.</source>
        <translation>Ticklog reste donc dans la barre des tâches, et son menu est dans la fenêtre principale. Il passera dans la zone de notification dès qu’il y en aura une.</translation>
    </message>
    <message>
        <source>Ticklog databases</source>
        <translation>Bases de données Ticklog</translation>
    </message>
    <message>
        <source>CSV files</source>
        <translation>Fichiers CSV</translation>
    </message>
    <message>
        <source>Application Times</source>
        <translation>Temps par programme</translation>
    </message>
    <message>
        <source>Show Time Window</source>
        <translation>Afficher Ticklog</translation>
    </message>
    <message>
        <source>Preferences...</source>
        <translation>Préférences…</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>À propos de Ticklog</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>About Ticklog</source>
        <translation>À propos de Ticklog</translation>
    </message>
    <message>
        <source>Delete Project</source>
        <translation>Supprimer le projet</translation>
    </message>
    <message>
        <source>Add to Project</source>
        <translation>Ajouter au projet</translation>
    </message>
    <message>
        <source>Rename Project</source>
        <translation>Renommer le projet</translation>
    </message>
    <message>
        <source>The timer set &quot;%@&quot; will be deleted.</source>
        <translation>Le projet « %@ » sera supprimé.</translation>
    </message>
    <message>
        <source>Delete selected timer set?</source>
        <translation>Supprimer le projet sélectionné ?</translation>
    </message>
    <message>
        <source>Move Project</source>
        <translation>Déplacer le projet</translation>
    </message>
    <message>
        <source>Remove from Project</source>
        <translation>Retirer du projet</translation>
    </message>
    <message>
        <source>Label Project</source>
        <translation>Changer la couleur du projet</translation>
    </message>
    <message>
        <source>Copy Project</source>
        <translation>Copier le projet</translation>
    </message>
    <message>
        <source>Ticklog cannot see other programs’ windows</source>
        <translation>Ticklog ne voit pas les fenêtres des autres programmes</translation>
    </message>
    <message>
        <source>To count the time spent in each window, it needs the accessibility services of the desktop. Start the timer again when they are turned on.</source>
        <translation>Pour compter le temps passé dans chaque fenêtre, il a besoin des services d’accessibilité du bureau. Redémarrez le chronomètre une fois ces services activés.</translation>
    </message>
    <message>
        <source>Turn On</source>
        <translation>Activer</translation>
    </message>
    <message>
        <source>Delete &amp;Without Asking</source>
        <translation>Supprimer sans &amp;demander</translation>
    </message>
    <message>
        <source>C&amp;ollapse All</source>
        <translation>Tout &amp;réduire</translation>
    </message>
    <message>
        <source>&amp;Rename Project</source>
        <translation>&amp;Renommer le projet</translation>
    </message>
    <message>
        <source>Sho&amp;w Ticklog in:</source>
        <translation>A&amp;fficher Ticklog dans&#xa0;:</translation>
    </message>
    <message>
        <source>Ticklog cannot be started at login.</source>
        <translation>Ticklog ne peut pas être lancé à l’ouverture de session.</translation>
    </message>
    <message>
        <source>Ticklog is still started at login.</source>
        <translation>Ticklog est toujours lancé à l’ouverture de session.</translation>
    </message>
    <message>
        <source>Plasma tells only installed programs which window is in front. Install Ticklog, and start it from the menu.</source>
        <translation>Plasma n’indique qu’aux programmes installés quelle fenêtre est au premier plan. Installez Ticklog et lancez-le depuis le menu.</translation>
    </message>
    <message>
        <source>This Wayland desktop no longer tells other programs which window is in front.</source>
        <translation>Ce bureau Wayland n’indique plus aux autres programmes quelle fenêtre est au premier plan.</translation>
    </message>
    <message>
        <source>GNOME Shell tells which window is in front only to its extensions, and the one that belongs to Ticklog is not running.</source>
        <translation>GNOME Shell n’indique qu’à ses extensions quelle fenêtre est au premier plan, et celle de Ticklog n’est pas active.</translation>
    </message>
    <message>
        <source>GNOME Shell tells this only to its extensions. The one that comes with Ticklog tells Ticklog, and no other program, which windows are on the screen. Without it Ticklog sees only some programs.</source>
        <translation>GNOME Shell ne l’indique qu’à ses extensions. Celle fournie avec Ticklog indique à Ticklog, et à aucun autre programme, quelles fenêtres sont à l’écran. Sans elle, Ticklog ne voit que certains programmes.</translation>
    </message>
    <message>
        <source>Ticklog needs an extension of GNOME Shell to see which window is in front.</source>
        <translation>Ticklog a besoin d’une extension de GNOME Shell pour voir quelle fenêtre est au premier plan.</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Pas maintenant</translation>
    </message>
    <message>
        <source>Don&apos;t Ask Again</source>
        <translation>Ne plus demander</translation>
    </message>
    <message>
        <source>GNOME Shell finds new extensions at login: log out and in again once it is installed.</source>
        <translation>GNOME Shell détecte les nouvelles extensions à l’ouverture de session&#xa0;: fermez la session et rouvrez-la après l’installation.</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installer</translation>
    </message>
    <message>
        <source>The extension could not be installed.</source>
        <translation>L’extension n’a pas pu être installée.</translation>
    </message>
    <message>
        <source>Until then, Ticklog sees only programs that tell assistive programs about their windows; all other time counts as “Desktop”.</source>
        <translation>D’ici là, seuls sont vus les programmes qui indiquent leurs fenêtres aux programmes d’assistance ; tout autre temps est compté comme « Bureau ».</translation>
    </message>
    <message>
        <source>GNOME Shell’s switch for all extensions is off. It is turned on as well, and with it the other extensions that are chosen there.</source>
        <translation>Dans GNOME Shell, l’interrupteur de toutes les extensions est désactivé. Il sera activé aussi, et avec lui les autres extensions qui y sont choisies.</translation>
    </message>
    <message>
        <source>GNOME Shell has not turned the extension on.</source>
        <translation>GNOME Shell n’a pas activé l’extension.</translation>
    </message>
    <message>
        <source>Turn it on in the program “Extensions”, together with the switch for all extensions. If you cannot, the administrator of this computer does not allow it.</source>
        <translation>Activez-la dans le programme « Extensions », ainsi que l’interrupteur de toutes les extensions. Si c’est impossible, l’administrateur de cet ordinateur ne le permet pas.</translation>
    </message>
    <message>
        <source>Set Up...</source>
        <translation>Configurer…</translation>
    </message>
    <message>
        <source>Why Are Windows Not Counted?</source>
        <translation>Pourquoi les fenêtres ne sont-elles pas comptées&#xa0;?</translation>
    </message>
    <message>
        <source>GNOME Shell does not tell programs in a sandbox which window is in front. Installed outside of one, Ticklog can be told.</source>
        <translation>GNOME Shell n’indique pas aux programmes d’un bac à sable quelle fenêtre est au premier plan. Installé en dehors, Ticklog peut le savoir.</translation>
    </message>
    <message>
        <source>Ticklog runs in a sandbox and cannot change what starts with your session. The desktop’s settings can.</source>
        <translation>Ticklog s’exécute dans un bac à sable et ne peut pas changer ce que la session démarre. Les paramètres du bureau le peuvent.</translation>
    </message>
    <message>
        <source>The desktop has stopped responding. Until it responds, no window’s time is counted.</source>
        <translation>Le bureau ne répond plus. Tant qu’il ne répond pas, le temps d’aucune fenêtre n’est compté.</translation>
    </message>
    <message>
        <source>Ticklog’s extension does not support GNOME Shell %@ yet.</source>
        <translation>L’extension de Ticklog n’a pas encore été testée avec GNOME Shell %@ et ne le prend pas en charge.</translation>
    </message>
    <message>
        <source>Ticklog was started without knowing of the Wayland desktop, so it sees only programs that run through the X server. Start Ticklog from the desktop’s menu.</source>
        <translation>Ticklog a été démarré sans connaître le bureau Wayland et ne voit donc que les programmes qui passent par le serveur X. Démarrez Ticklog depuis le menu du bureau.</translation>
    </message>
    <message>
        <source>Until it runs, no window’s time is counted.</source>
        <translation>Tant qu’elle n’est pas active, le temps d’aucune fenêtre n’est compté.</translation>
    </message>
    <message>
        <source>Until it runs, Ticklog sees only programs that tell assistive programs about their windows; all other time counts as “Desktop”.</source>
        <translation>Tant qu’elle n’est pas active, seuls sont vus les programmes qui indiquent leurs fenêtres aux programmes d’assistance ; tout autre temps est compté comme « Bureau ».</translation>
    </message>
    <message>
        <source>Freeze</source>
        <translation>Figer</translation>
    </message>
    <message>
        <source>“%@” is in a folder where others may write: they could replace it.</source>
        <translation>«&#xa0;%@&#xa0;» se trouve dans un dossier où d’autres peuvent écrire, et donc le remplacer.</translation>
    </message>
    <message>
        <source>“%@” cannot be saved: its folder is missing.</source>
        <translation>«&#xa0;%@&#xa0;» ne peut pas être enregistré&#xa0;: son dossier est introuvable.</translation>
    </message>
    <message>
        <source>“%@” cannot be saved: its folder is read-only.</source>
        <translation>«&#xa0;%@&#xa0;» ne peut pas être enregistré&#xa0;: son dossier est en lecture seule.</translation>
    </message>
    <message>
        <source>“%@” cannot be saved: the disk is full.</source>
        <translation>«&#xa0;%@&#xa0;» ne peut pas être enregistré&#xa0;: le disque est plein.</translation>
    </message>
    <message>
        <source>“%@” cannot be saved.</source>
        <translation>«&#xa0;%@&#xa0;» ne peut pas être enregistré.</translation>
    </message>
    <message>
        <source>“%@” could not be read. It was set aside, and Ticklog has started without it.</source>
        <translation>«&#xa0;%@&#xa0;» n’a pas pu être lu. Le fichier est mis de côté et Ticklog a commencé sans lui.</translation>
    </message>
    <message>
        <source>Some entries of “%@” are damaged and were left out. The damaged file is kept beside it.</source>
        <translation>Certaines entrées de « %@ » sont endommagées et ont été omises. Le fichier endommagé est conservé à côté.</translation>
    </message>
    <message>
        <source>“%@” could not be read. Ticklog continues with the last settings that it kept.</source>
        <translation>« %@ » n’a pas pu être lu. Ticklog continue avec les derniers réglages conservés.</translation>
    </message>
    <message>
        <source>The archive “%@” could not be moved to its folder. It lies beside the database.</source>
        <translation>L’archive «&#xa0;%@&#xa0;» n’a pas pu être placée dans son dossier. Elle se trouve à côté de la base de données.</translation>
    </message>
    <message>
        <source>The archive “%@” could not be written anywhere.</source>
        <translation>L’archive «&#xa0;%@&#xa0;» n’a pu être écrite nulle part.</translation>
    </message>
    <message>
        <source>The database “%@” is missing. What is counted until it is back will be added to it.</source>
        <translation>La base de données «&#xa0;%@&#xa0;» est introuvable. Ce qui est compté jusqu’à son retour y sera ajouté.</translation>
    </message>
    <message>
        <source>No backup could be made, so nothing was changed.</source>
        <translation>Aucune sauvegarde n’a pu être faite, rien n’a donc été modifié.</translation>
    </message>
    <message>
        <source>The timers could not be imported.</source>
        <translation>Les chronomètres n’ont pas pu être importés.</translation>
    </message>
    <message>
        <source>Understood</source>
        <translation>Compris</translation>
    </message>
    <message>
        <source>Export &amp;Project…</source>
        <translation>Exporter le &amp;projet…</translation>
    </message>
    <message>
        <source>No timer that matches the search reaches the minimum time.</source>
        <translation>Aucun chronomètre correspondant à la recherche n’atteint le temps minimum.</translation>
    </message>
    <message>
        <source>Export All Timers to CSV, Narrowed by the Search</source>
        <translation>Exporter tous les chronomètres en CSV, limités par la recherche</translation>
    </message>
    <message>
        <source>Export All Timers to CSV</source>
        <translation>Exporter tous les chronomètres en CSV</translation>
    </message>
    <message>
        <source>Export Project to CSV</source>
        <translation>Exporter le projet en CSV</translation>
    </message>
    <message>
        <source>Ticklog keeps running in the task bar.</source>
        <translation>Ticklog continue dans la barre des tâches.</translation>
    </message>
    <message>
        <source>There is no tray icon that could bring a closed window back, so closing the window minimizes it and Ticklog keeps running. “Quit” ends Ticklog.</source>
        <translation>Aucune icône de la zone de notification ne ramène à une fenêtre fermée. La fermer la réduit donc, et Ticklog continue. « Quitter » y met fin.</translation>
    </message>
    <message>
        <source>There are more timers than one database can hold: %@ at the most.</source>
        <translation>Il y a plus de chronomètres qu’une base de données ne peut en contenir&#xa0;: %@ au maximum.</translation>
    </message>
    <message>
        <source>Importing…</source>
        <translation>Importation…</translation>
    </message>
    <message>
        <source>This Wayland desktop does not tell other programs which window is in front. Ticklog sees only programs that tell assistive programs about their windows; all other time counts as “Desktop”.</source>
        <translation>Ce bureau Wayland n’indique pas aux autres programmes quelle fenêtre est au premier plan. Seuls sont vus les programmes qui indiquent leurs fenêtres aux programmes d’assistance ; tout autre temps est compté comme « Bureau ».</translation>
    </message>
    <message>
        <source>“%@” was written by a newer version. It is left alone, and nothing is added to it.</source>
        <translation>«&#xa0;%@&#xa0;» a été écrit par une version plus récente. Il reste tel quel et rien n’y est ajouté.</translation>
    </message>
    <message>
        <source>No history is kept.</source>
        <translation>Aucun historique n’est conservé.</translation>
    </message>
    <message>
        <source>until</source>
        <translation>jusqu’à</translation>
    </message>
    <message>
        <source>&amp;Forget…</source>
        <translation>&amp;Oublier…</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Oublier</translation>
    </message>
    <message>
        <source>Any title</source>
        <translation>N’importe quel titre</translation>
    </message>
    <message>
        <source>At any time</source>
        <translation>N’importe quand</translation>
    </message>
    <message>
        <source>On the day</source>
        <translation>Le jour</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Du</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>&amp;Program:</source>
        <translation>&amp;Programme&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Title contains:</source>
        <translation>Le &amp;titre contient&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;When:</source>
        <translation>&amp;Quand&#xa0;:</translation>
    </message>
    <message>
        <source>The history forgets it for good. Timers keep their names and times; to remove those, delete their rows.</source>
        <translation>L’historique l’oublie pour de bon. Les chronomètres gardent leurs noms et leurs temps ; pour les retirer, supprimez leurs lignes.</translation>
    </message>
    <message>
        <source>What would be forgotten</source>
        <translation>Ce qui serait oublié</translation>
    </message>
    <message>
        <source>All programs</source>
        <translation>Tous les programmes</translation>
    </message>
    <message>
        <source>The history cannot be read.</source>
        <translation>L’historique ne peut pas être lu.</translation>
    </message>
    <message>
        <source>Forget this for good?</source>
        <translation>Oublier ceci pour de bon&#xa0;?</translation>
    </message>
    <message>
        <source>It is removed from the file at once. This cannot be undone.</source>
        <translation>Ces données sont aussitôt retirées du fichier. Cette opération ne peut pas être annulée.</translation>
    </message>
    <message>
        <source>It is being forgotten…</source>
        <translation>Oubli en cours…</translation>
    </message>
    <message>
        <source>It is forgotten.</source>
        <translation>Oubli terminé.</translation>
    </message>
    <message>
        <source>It is not forgotten yet, because the history cannot be saved at the moment. Ticklog keeps trying.</source>
        <translation>L’oubli n’est pas terminé, car l’historique ne peut pas être enregistré pour l’instant. Ticklog réessaie.</translation>
    </message>
    <message>
        <source>Forever</source>
        <translation>Pour toujours</translation>
    </message>
    <message>
        <source>For five years</source>
        <translation>Pendant cinq ans</translation>
    </message>
    <message>
        <source>For a year</source>
        <translation>Pendant un an</translation>
    </message>
    <message>
        <source>For 90 days</source>
        <translation>Pendant 90 jours</translation>
    </message>
    <message>
        <source>Not at all</source>
        <translation>Pas du tout</translation>
    </message>
    <message>
        <source>The history records which title was in front, and when. It stays on this machine, in a file that only you can read, and lets the timers lose no more than 15 seconds in a crash.</source>
        <translation>L’historique retient quel titre était au premier plan, et quand. Il reste sur cet ordinateur, dans un fichier que vous seul pouvez lire ; grâce à lui, un plantage coûte au plus 15 secondes aux chronomètres.</translation>
    </message>
    <message>
        <source>&amp;Keep the history:</source>
        <translation>&amp;Conserver l’historique&#xa0;:</translation>
    </message>
    <message>
        <source>A &amp;day begins at:</source>
        <translation>Un &amp;jour commence à&#xa0;:</translation>
    </message>
    <message>
        <source>For %@ days</source>
        <translation>Pendant %@ jours</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Aucun résultat.</translation>
    </message>
    <message>
        <source>Titles: %@</source>
        <translation>Titres&#xa0;: %@</translation>
    </message>
    <message>
        <source>Time spent: %@</source>
        <translation>Temps passé&#xa0;: %@</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Stop keeping a history?</source>
        <translation>Ne plus conserver d’historique ?</translation>
    </message>
    <message>
        <source>Forget what is older?</source>
        <translation>Oublier ce qui est plus ancien&#xa0;?</translation>
    </message>
    <message>
        <source>Its file is removed at once. This cannot be undone. Timers keep their times, but a crash may cost them the last 15 minutes.</source>
        <translation>Son fichier est aussitôt supprimé. Cette opération ne peut pas être annulée. Les chronomètres gardent leurs temps, mais un plantage peut leur coûter les 15 dernières minutes.</translation>
    </message>
    <message>
        <source>Titles</source>
        <translation>Titres</translation>
    </message>
    <message>
        <source>Rule for Titles</source>
        <translation>Règle pour les titres</translation>
    </message>
    <message>
        <source>How the title is found</source>
        <translation>Comment le titre est trouvé</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>contient</translation>
    </message>
    <message>
        <source>matches the expression</source>
        <translation>correspond à l’expression</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>&amp;Program contains:</source>
        <translation>Le &amp;programme contient&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titre&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Effect:</source>
        <translation>&amp;Effet&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;New text:</source>
        <translation>&amp;Nouveau texte&#xa0;:</translation>
    </message>
    <message>
        <source>This expression cannot be read: %@</source>
        <translation>Cette expression est illisible&#xa0;: %@</translation>
    </message>
    <message>
        <source>This expression is wrong: %@</source>
        <translation>Expression incorrecte : %@</translation>
    </message>
    <message>
        <source>Private windows of browsers</source>
        <translation>Fenêtres privées des navigateurs</translation>
    </message>
    <message>
        <source>Keep the title</source>
        <translation>Conserver le titre</translation>
    </message>
    <message>
        <source>Replace the title</source>
        <translation>Remplacer le titre</translation>
    </message>
    <message>
        <source>Count as “Private”</source>
        <translation>Compter comme « Privé »</translation>
    </message>
    <message>
        <source>Leave the title out</source>
        <translation>Omettre le titre</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>Effet</translation>
    </message>
    <message>
        <source>Last 7 Days</source>
        <translation>7 derniers jours</translation>
    </message>
    <message>
        <source>Rules for titles</source>
        <translation>Règles pour les titres</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>M&amp;onter</translation>
    </message>
    <message>
        <source>Do&amp;wn</source>
        <translation>Desce&amp;ndre</translation>
    </message>
    <message>
        <source>&amp;Matching Titles…</source>
        <translation>&amp;Titres concernés…</translation>
    </message>
    <message>
        <source>Apply to the &amp;Past…</source>
        <translation>Appliquer au &amp;passé…</translation>
    </message>
    <message>
        <source>What these rules hide is never written. The first rule that matches decides.</source>
        <translation>Ce que ces règles cachent n’est jamais écrit. La première règle qui correspond décide.</translation>
    </message>
    <message>
        <source>Titles of the Last 7 Days</source>
        <translation>Titres des 7 derniers jours</translation>
    </message>
    <message>
        <source>The rules match nothing in the past.</source>
        <translation>Les règles ne correspondent à rien dans le passé.</translation>
    </message>
    <message>
        <source>Timers: %@</source>
        <translation>Chronomètres&#xa0;: %@</translation>
    </message>
    <message>
        <source>Apply the rules to the past?</source>
        <translation>Appliquer les règles au passé&#xa0;?</translation>
    </message>
    <message>
        <source>What they hide is removed for good from the history, the timers and the projects. Neither this nor any earlier step can be undone. Archives and backups stay as they are.</source>
        <translation>Ce qu’elles cachent est retiré pour de bon de l’historique, des chronomètres et des projets. Ni cette opération ni les précédentes ne pourront être annulées. Les archives et les sauvegardes restent telles quelles.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Pa&amp;tterns…</source>
        <translation>Mo&amp;tifs…</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>Patterns</source>
        <translation>Motifs</translation>
    </message>
    <message>
        <source>Program contains</source>
        <translation>Le programme contient</translation>
    </message>
    <message>
        <source>Title contains</source>
        <translation>Le titre contient</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Expression</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Ajouter</translation>
    </message>
    <message>
        <source>Whatever matches belongs to the project in the history and in reports, past time included. The project’s own timers stay as they are.</source>
        <translation>Ce qui correspond appartient au projet dans l’historique et dans les rapports, passé compris. Les chronomètres du projet restent tels quels.</translation>
    </message>
    <message>
        <source>The title is a regular expression</source>
        <translation>Le titre est une expression régulière</translation>
    </message>
    <message>
        <source>Change Patterns</source>
        <translation>Modifier les motifs</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Précédent</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>Sui&amp;vant</translation>
    </message>
    <message>
        <source>&amp;Today</source>
        <translation>Aujourd’&amp;hui</translation>
    </message>
    <message>
        <source>&amp;Day</source>
        <translation>&amp;Jour</translation>
    </message>
    <message>
        <source>&amp;Week</source>
        <translation>&amp;Semaine</translation>
    </message>
    <message>
        <source>&amp;Month</source>
        <translation>&amp;Mois</translation>
    </message>
    <message>
        <source>&amp;Year</source>
        <translation>&amp;Année</translation>
    </message>
    <message>
        <source>F&amp;rom – To…</source>
        <translation>&amp;Du – au…</translation>
    </message>
    <message>
        <source>By &amp;Program</source>
        <translation>Par p&amp;rogramme</translation>
    </message>
    <message>
        <source>By Pro&amp;ject</source>
        <translation>Par proje&amp;t</translation>
    </message>
    <message>
        <source>Nothing here reaches the minimum time.</source>
        <translation>Rien ici n’atteint le temps minimum.</translation>
    </message>
    <message>
        <source>Nothing in this time matches the search.</source>
        <translation>Rien dans cette période ne correspond à la recherche.</translation>
    </message>
    <message>
        <source>No work for this project in this time.</source>
        <translation>Aucun travail pour ce projet dans cette période.</translation>
    </message>
    <message>
        <source>This time is still to come.</source>
        <translation>Cette période est encore à venir.</translation>
    </message>
    <message>
        <source>No work was recorded in this time.</source>
        <translation>Aucun travail n’a été enregistré dans cette période.</translation>
    </message>
    <message>
        <source>Ticklog History</source>
        <translation>Historique Ticklog</translation>
    </message>
    <message>
        <source>The history could not be exported.</source>
        <translation>L’historique n’a pas pu être exporté.</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Part</translation>
    </message>
    <message>
        <source>Opens a calendar</source>
        <translation>Ouvre un calendrier</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Au</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>&amp;Timers</source>
        <translation>&amp;Chronomètres</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Historique</translation>
    </message>
    <message>
        <source>H&amp;istory</source>
        <translation>&amp;Historique</translation>
    </message>
    <message>
        <source>The day</source>
        <translation>La journée</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programmes</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Projets</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Inactivité</translation>
    </message>
    <message>
        <source>Project %@</source>
        <translation>Projet %@</translation>
    </message>
    <message>
        <source>%@ more</source>
        <translation>%@ autres</translation>
    </message>
    <message>
        <source>The period</source>
        <translation>La période</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Autres</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Week of %@</source>
        <translation>Semaine du %@</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Time &amp;Sheet…</source>
        <translation>&amp;Feuille de temps…</translation>
    </message>
    <message>
        <source>No Project</source>
        <translation>Sans projet</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Time Sheet</source>
        <translation>Feuille de temps</translation>
    </message>
    <message>
        <source>Measured: %@</source>
        <translation>Mesuré : %@</translation>
    </message>
    <message>
        <source>Rounding</source>
        <translation>Arrondi</translation>
    </message>
    <message>
        <source>No Rounding</source>
        <translation>Sans arrondi</translation>
    </message>
    <message>
        <source>6 Minutes</source>
        <translation>6 minutes</translation>
    </message>
    <message>
        <source>15 Minutes</source>
        <translation>15 minutes</translation>
    </message>
    <message>
        <source>30 Minutes</source>
        <translation>30 minutes</translation>
    </message>
    <message>
        <source>Direction of rounding</source>
        <translation>Sens de l’arrondi</translation>
    </message>
    <message>
        <source>To the Nearest</source>
        <translation>Au plus proche</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Vers le haut</translation>
    </message>
    <message>
        <source>What is rounded</source>
        <translation>Ce qui est arrondi</translation>
    </message>
    <message>
        <source>Each Cell</source>
        <translation>Chaque cellule</translation>
    </message>
    <message>
        <source>Each Day</source>
        <translation>Chaque jour</translation>
    </message>
    <message>
        <source>Form of times</source>
        <translation>Format des durées</translation>
    </message>
    <message>
        <source>Hours and Minutes</source>
        <translation>Heures et minutes</translation>
    </message>
    <message>
        <source>Decimal Hours</source>
        <translation>Heures décimales</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom :</translation>
    </message>
    <message>
        <source>Notes:</source>
        <translation>Notes :</translation>
    </message>
    <message>
        <source>Save as C&amp;SV…</source>
        <translation>Enregistrer en C&amp;SV…</translation>
    </message>
    <message>
        <source>Save as P&amp;DF…</source>
        <translation>Enregistrer en P&amp;DF…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Imprimer…</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Save the Time Sheet as CSV</source>
        <translation>Enregistrer la feuille de temps en CSV</translation>
    </message>
    <message>
        <source>The time sheet could not be saved.</source>
        <translation>La feuille de temps n’a pas pu être enregistrée.</translation>
    </message>
    <message>
        <source>Save the Time Sheet as PDF</source>
        <translation>Enregistrer la feuille de temps en PDF</translation>
    </message>
    <message>
        <source>Today: %@</source>
        <translation>Aujourd’hui : %@</translation>
    </message>
    <message>
        <source>Pause For</source>
        <translation>Pause pendant</translation>
    </message>
    <message>
        <source>An Hour</source>
        <translation>Une heure</translation>
    </message>
    <message>
        <source>Until Tomorrow</source>
        <translation>Jusqu’à demain</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Manuel</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>Chapters</source>
        <translation>Chapitres</translation>
    </message>
    <message>
        <source>&amp;Give to Project</source>
        <translation>Attri&amp;buer à un projet</translation>
    </message>
    <message>
        <source>&amp;Name This Time…</source>
        <translation>&amp;Nommer ce temps…</translation>
    </message>
    <message>
        <source>Boo&amp;k Time…</source>
        <translation>Sa&amp;isir du temps…</translation>
    </message>
    <message>
        <source>Forg&amp;et This Time…</source>
        <translation>&amp;Oublier ce temps…</translation>
    </message>
    <message>
        <source>Booked by hand on %1</source>
        <translation>Saisi à la main le %1</translation>
    </message>
    <message>
        <source>Given to its project by hand on %1</source>
        <translation>Attribué au projet à la main le %1</translation>
    </message>
    <message>
        <source>Named by hand on %1, before: %2</source>
        <translation>Nommé à la main le %1, avant&#xa0;: %2</translation>
    </message>
    <message>
        <source>By Hand</source>
        <translation>À la main</translation>
    </message>
    <message>
        <source>&amp;No Project</source>
        <translation>&amp;Sans projet</translation>
    </message>
    <message>
        <source>Give to Project</source>
        <translation>Attribuer à un projet</translation>
    </message>
    <message>
        <source>Book</source>
        <translation>Saisir</translation>
    </message>
    <message>
        <source>Boo&amp;k</source>
        <translation>&amp;Saisir</translation>
    </message>
    <message>
        <source>Book Time</source>
        <translation>Saisir du temps</translation>
    </message>
    <message>
        <source>&amp;Begin:</source>
        <translation>&amp;Début&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;End:</source>
        <translation>&amp;Fin&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;What was it?</source>
        <translation>&amp;Qu’était-ce&#xa0;?</translation>
    </message>
    <message>
        <source>&amp;Project:</source>
        <translation>&amp;Projet&#xa0;:</translation>
    </message>
    <message>
        <source>It ends before it begins.</source>
        <translation>La fin précède le début.</translation>
    </message>
    <message>
        <source>No time is free there: you worked then, or it is still to come.</source>
        <translation>Aucun temps n’y est libre : vous avez travaillé, ou ce temps est encore à venir.</translation>
    </message>
    <message>
        <source>%1 of it is free. Time that you worked stays as it is.</source>
        <translation>%1 y sont libres. Le temps travaillé reste tel quel.</translation>
    </message>
    <message>
        <source>Named by hand</source>
        <translation>Nommé à la main</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nommer</translation>
    </message>
    <message>
        <source>Name This Time</source>
        <translation>Nommer ce temps</translation>
    </message>
    <message>
        <source>The time stays with its programs. The history notes what was changed by hand.</source>
        <translation>Le temps reste à ses programmes. L’historique note ce qui a été changé à la main.</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>A&amp;grandir</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Réd&amp;uire</translation>
    </message>
    <message>
        <source>Reset &amp;Zoom</source>
        <translation>Rétablir le &amp;zoom</translation>
    </message>
    <message>
        <source>Start the timer to record where your time goes, and when.</source>
        <translation>Démarrez le chronomètre pour enregistrer où passe votre temps, et quand.</translation>
    </message>
    <message>
        <source>Add to &amp;Project</source>
        <translation>Ajouter au &amp;projet</translation>
    </message>
    <message>
        <source>&amp;New Project…</source>
        <translation>&amp;Nouveau projet…</translation>
    </message>
    <message>
        <source>Absences</source>
        <translation>Absences</translation>
    </message>
    <message>
        <source>Do not ask about these absences</source>
        <translation>Ne rien demander sur ces absences</translation>
    </message>
    <message>
        <source>What the absence was</source>
        <translation>Ce qu’était l’absence</translation>
    </message>
    <message>
        <source>Project of the absence</source>
        <translation>Projet de l’absence</translation>
    </message>
    <message>
        <source>Book the absence as work</source>
        <translation>Saisir l’absence comme travail</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>The absence was not work</source>
        <translation>L’absence n’était pas du travail</translation>
    </message>
    <message>
        <source>&amp;What did you do?</source>
        <translation>&amp;Qu’avez-vous fait&#xa0;?</translation>
    </message>
    <message>
        <source>You were away: %@</source>
        <translation>Absence&#xa0;: %@</translation>
    </message>
    <message>
        <source>Book the Absence</source>
        <translation>Saisir l’absence</translation>
    </message>
    <message>
        <source>You were away for %@</source>
        <translation>Absence de %@</translation>
    </message>
    <message>
        <source>%@. What was it?</source>
        <translation>%@. Qu’était-ce&#xa0;?</translation>
    </message>
    <message>
        <source>Say…</source>
        <translation>Préciser…</translation>
    </message>
    <message>
        <source>%@ – %@ (%@)</source>
        <translation>%@ – %@ (%@)</translation>
    </message>
    <message>
        <source>&amp;Ask what an absence was</source>
        <translation>&amp;Demander ce qu’était une absence</translation>
    </message>
    <message>
        <source>When you come back, a notice and a bar in the window ask what you did. Your answer is booked by hand; without one, the time stays idle.</source>
        <translation>À votre retour, une notification et une barre dans la fenêtre demandent ce que vous avez fait. Votre réponse est saisie à la main&#xa0;; sans réponse, le temps reste de l’inactivité.</translation>
    </message>
    <message>
        <source>&amp;Shortest absence:</source>
        <translation>Absence la &amp;plus courte&#xa0;:</translation>
    </message>
    <message>
        <source>The times could not be exported.</source>
        <translation>Les temps n’ont pas pu être exportés.</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>Export Shown &amp;Timers for Spreadsheets…</source>
        <translation>Exporter les chronomètres affichés pour un ta&amp;bleur…</translation>
    </message>
    <message>
        <source>Copy for Spreadshee&amp;t</source>
        <translation>Copier pour un ta&amp;bleur</translation>
    </message>
    <message>
        <source>A project shows all its timers, however little time they have</source>
        <translation>Un projet montre tous ses chronomètres, même ceux qui ont peu de temps</translation>
    </message>
    <message>
        <source>It is removed from the file at once. It can be undone until Ticklog ends.</source>
        <translation>Ces données sont aussitôt retirées du fichier. L’opération peut être annulée tant que Ticklog n’est pas quitté.</translation>
    </message>
    <message>
        <source>Forget this?</source>
        <translation>Oublier ceci&#xa0;?</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lecture…</translation>
    </message>
    <message>
        <source>The history cannot be read at the moment.</source>
        <translation>L’historique ne peut pas être lu pour l’instant.</translation>
    </message>
    <message>
        <source>Time that belongs to several projects is in each of their rows.</source>
        <translation>Le temps qui appartient à plusieurs projets figure dans la ligne de chacun.</translation>
    </message>
    <message>
        <source>Total without %@</source>
        <translation>Total sans %@</translation>
    </message>
    <message>
        <source>Total without %@ and %@</source>
        <translation>Total sans %@ et %@</translation>
    </message>
    <message>
        <source>No history is kept. You can turn it on in the preferences, under History.</source>
        <translation>Aucun historique n’est conservé. Vous pouvez l’activer dans les préférences, sous Historique.</translation>
    </message>
    <message>
        <source>Delete selected times</source>
        <translation>Supprimer les lignes sélectionnées ?</translation>
    </message>
    <message>
        <source>Are you sure you wish permanently delete the selected timing rows?</source>
        <translation>Leurs temps sont supprimés avec elles. « Annuler » les fait revenir.</translation>
    </message>
    <message>
        <source>Desktop</source>
        <translation>Bureau</translation>
    </message>
    <message>
        <source>Private</source>
        <translation>Privé</translation>
    </message>
    <message>
        <source>Timer still running.</source>
        <translation>Le chronomètre tourne encore.</translation>
    </message>
    <message>
        <source>There is a timer currently running. Ticklog must remain open in order to keep track of time. Are you sure you wish to quit?</source>
        <translation>Ticklog doit rester ouvert pour compter votre temps. Voulez-vous quitter ?</translation>
    </message>
    <message>
        <source>Remain Open</source>
        <translation>Laisser ouvert</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Période</translation>
    </message>
    <message>
        <source>Length of the range</source>
        <translation>Durée de la période</translation>
    </message>
    <message>
        <source>Grouping</source>
        <translation>Regroupement</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Calendrier</translation>
    </message>
    <message>
        <source>Clear Search</source>
        <translation>Effacer la recherche</translation>
    </message>
    <message>
        <source>While its timer runs, Ticklog notes which program and which of its windows, by its title, is in front, and for how long.</source>
        <translation>Tant que son chronomètre tourne, Ticklog note quel programme et laquelle de ses fenêtres (d’après son titre) est au premier plan, et pendant combien de temps.</translation>
    </message>
    <message>
        <source>It notes no keys, no pictures and nothing of what is in a window; time without input goes to Idle.</source>
        <translation>Il ne note ni les touches, ni aucune image, ni le contenu des fenêtres ; le temps sans clavier ni souris compte comme « Inactivité ».</translation>
    </message>
    <message>
        <source>The record stays on this computer, in files that only you can read, and is sent nowhere.</source>
        <translation>L’enregistrement reste sur cet ordinateur, dans des fichiers que vous seul pouvez lire, et n’est envoyé nulle part.</translation>
    </message>
    <message>
        <source>You can hide titles by rules, and delete or forget whatever was recorded, at any time.</source>
        <translation>Vous pouvez à tout moment masquer des titres par des règles, et supprimer ou oublier ce qui a été enregistré.</translation>
    </message>
    <message>
        <source>Start Ticklog when I log in</source>
        <translation>Lancer Ticklog à l’ouverture de session</translation>
    </message>
    <message>
        <source>Start the Timer</source>
        <translation>Démarrer le chronomètre</translation>
    </message>
    <message>
        <source>Welcome to Ticklog</source>
        <translation>Bienvenue dans Ticklog</translation>
    </message>
    <message>
        <source>Hide Titles…</source>
        <translation>Masquer des titres…</translation>
    </message>
    <message>
        <source>Not Yet</source>
        <translation>Pas encore</translation>
    </message>
    <message>
        <source>Icons of &amp;programs</source>
        <translation>Icônes des &amp;programmes</translation>
    </message>
    <message>
        <source>A &amp;bar behind each time</source>
        <translation>Une &amp;barre derrière chaque durée</translation>
    </message>
    <message>
        <source>Titles without their program’s &amp;name</source>
        <translation>Titres sans le &amp;nom de leur programme</translation>
    </message>
    <message>
        <source>Times of pro&amp;jects in the sidebar</source>
        <translation>Durées des pro&amp;jets dans le volet latéral</translation>
    </message>
    <message>
        <source>Timers and projects show:</source>
        <translation>Les chronomètres et les projets affichent&#xa0;:</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>Listes</translation>
    </message>
    <message>
        <source>Paste &amp;into Project</source>
        <translation>Coller dans le pro&amp;jet</translation>
    </message>
    <message>
        <source>&amp;Sort By</source>
        <translation>Tr&amp;ier par</translation>
    </message>
    <message>
        <source>&amp;Ascending</source>
        <translation>&amp;Croissant</translation>
    </message>
    <message>
        <source>&amp;Descending</source>
        <translation>&amp;Décroissant</translation>
    </message>
    <message>
        <source>sorted, ascending</source>
        <translation>tri croissant</translation>
    </message>
    <message>
        <source>sorted, descending</source>
        <translation>tri décroissant</translation>
    </message>
    <message>
        <source>Time that belongs to several projects is in each of them.</source>
        <translation>Le temps qui appartient à plusieurs projets figure dans chacun d’eux.</translation>
    </message>
    <message>
        <source>PDF documents</source>
        <translation>Documents PDF</translation>
    </message>
    <message>
        <source>A row for each &amp;title</source>
        <translation>Une ligne par &amp;titre</translation>
    </message>
    <message>
        <source>A row for each &amp;title, in all programs</source>
        <translation>Une ligne par &amp;titre, dans tous les programmes</translation>
    </message>
    <message>
        <source>All time is in your projects.</source>
        <translation>Tout le temps est dans vos projets.</translation>
    </message>
    <message>
        <source>%@: a row for each title</source>
        <translation>%@ : une ligne par titre</translation>
    </message>
    <message>
        <source>In reports, rules leave out, rename and categorize programs. A row for each title changes how the timers are kept.</source>
        <translation>Dans les rapports, les règles omettent, renomment et classent les programmes. Une ligne par titre change la façon de compter.</translation>
    </message>
    <message>
        <source>When a window gets another title, a new row begins instead of the window’s row getting its name. A title that comes back goes on in its old row. After switching this off, the row of a window’s latest title follows the window again, with the time it has.</source>
        <translation>Quand une fenêtre change de titre, une nouvelle ligne commence au lieu que la ligne de la fenêtre prenne ce nom. Un titre qui revient continue dans son ancienne ligne. Une fois ceci désactivé, la ligne du dernier titre suit de nouveau la fenêtre, avec le temps qu’elle a.</translation>
    </message>
</context>
</TS>
