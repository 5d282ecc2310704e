% Run against an installed package: classes, gateway and default template
% come from the package's own folder.
gw = which ('__deckforge_gw__');
root = fileparts (gw);
assert (~isempty (strfind (root, getenv ('HOME'))), 'gateway not from the installed package: %s', gw);
assert (exist (fullfile (root, 'toolbox', 'shared', 'deckforge', 'ppt', 'resources', 'templates', 'pptx', 'default.pptx'), 'file') == 2);
assert (strcmp (toolboxdir ('shared'), fullfile (root, 'toolbox', 'shared')));
assert (strcmp (which ('picfigure'), fullfile (root, 'picfigure.m')));   % figures as pictures
d = deckforge.ppt.MessageDispatcher.getTheDispatcher ();
collect_messages ();
l = addlistener (d, 'Message', @collect_messages);
d.dispatch (deckforge.ppt.ProgressMessage ('installed', d));
got = collect_messages ();
assert (numel (got) == 1 && strcmp (got{1}.Text, 'installed'));
delete (l);
out = fullfile (pwd, 'installed.pptx');
p = deckforge.ppt.Presentation (out);
masters = p.getMasterNames ();
layouts = p.getLayoutNames (masters{1});
p.add (layouts{1});
p.close ();
assert (exist (out, 'file') == 2);
