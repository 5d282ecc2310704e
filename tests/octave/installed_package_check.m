% Run against an installed package: classes, gateway and default template
% come from the package's own folder.
% The gateway and the library, compiled by pkg install, lie in the package's
% folder for this architecture; the script files and the template above it.
gw = which ('__deckforge_gw__');
assert (~isempty (strfind (gw, getenv ('HOME'))), 'gateway not from the installed package: %s', gw);
assert (exist (fullfile (fileparts (gw), 'libdeckforge_ppt.so'), 'file') == 2);
root = fileparts (which ('toolboxdir'));
assert (~isempty (strfind (root, getenv ('HOME'))), 'scripts not from the installed package: %s', root);
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

% A title slide and a table from a struct array, for a reader to check.
p = deckforge.ppt.Presentation (fullfile (pwd, 'installed_table.pptx'));
s = p.add ('Title Slide');
s.replace ('Title', 'Installed');
s = p.add ('Title and Content');
s.replace ('Content', struct ('Region', {'North', 'South'}, 'Q1', {1200, 950.5}));
p.close ();
text = evalc ('help deckforge.ppt.Presentation');
assert (~isempty (strfind (text, 'A presentation built on a template')), text);
