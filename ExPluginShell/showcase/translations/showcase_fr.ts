<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>StylePage</name>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Hover</source>
        <translation>Survol</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>Enfoncé</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Focus</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Push buttons</source>
        <translation>Boutons</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Coché</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>Plat</translation>
    </message>
    <message>
        <source>Other buttons</source>
        <translation>Autres boutons</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>A tool tip explains in one sentence.</source>
        <translation>Une info-bulle explique en une phrase.</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Correct automatically</source>
        <translation>Corriger automatiquement</translation>
    </message>
    <message>
        <source>Check boxes and radio buttons</source>
        <translation>Cases à cocher et boutons radio</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>Partly</source>
        <translation>En partie</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Old harbour at dusk</source>
        <translation>Vieux port au crépuscule</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Name of the place</source>
        <translation>Nom du lieu</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Can be read only</source>
        <translation>En lecture seule</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Appareil photo</translation>
    </message>
    <message>
        <source>Cannot be changed</source>
        <translation>Non modifiable</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Raccourci</translation>
    </message>
    <message>
        <source>Choices and numbers</source>
        <translation>Choix et nombres</translation>
    </message>
    <message>
        <source>Ranges and progress</source>
        <translation>Plages et progression</translation>
    </message>
    <message>
        <source>Lenses</source>
        <translation>Objectifs</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Métadonnées</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objectif</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>Focale</translation>
    </message>
    <message>
        <source>Aperture</source>
        <translation>Ouverture</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Forme</translation>
    </message>
    <message>
        <source>Keystoning</source>
        <translation>Perspective verticale</translation>
    </message>
    <message>
        <source>Horizon</source>
        <translation>Horizon</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recadrage</translation>
    </message>
    <message>
        <source>Distortion</source>
        <translation>Distorsion</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grille</translation>
    </message>
    <message>
        <source>Guides</source>
        <translation>Repères</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Loupe</source>
        <translation>Loupe</translation>
    </message>
    <message>
        <source>Straight lines stay straight, and the tower stops leaning backwards.</source>
        <translation>Les lignes droites restent droites, et la tour cesse de pencher en arrière.</translation>
    </message>
    <message>
        <source>Tilt-shift</source>
        <translation>Bascule et décentrement</translation>
    </message>
    <message>
        <source>Blurred at both ends</source>
        <translation>Flou aux deux bords</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation>Adapter à la fenêtre</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Taille réelle</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Rotation à gauche</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Édition</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>Perspective</source>
        <translation>Perspective</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>Web service</source>
        <translation>Service web</translation>
    </message>
    <message>
        <source>A SOAP client and the small service that it asks, both in this process.</source>
        <translation>Un client SOAP et le petit service qu’il interroge, tous deux dans ce processus.</translation>
    </message>
</context>
<context>
    <name>WebServicePage</name>
    <message>
        <source>Amount</source>
        <translation>Quantité</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>Ask the service</source>
        <translation>Interroger le service</translation>
    </message>
    <message>
        <source>Request</source>
        <translation>Requête</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>Réponse</translation>
    </message>
    <message>
        <source>Fault: %1</source>
        <translation>Erreur : %1</translation>
    </message>
    <message>
        <source>%1 cm</source>
        <translation>%1 cm</translation>
    </message>
</context>
</TS>
