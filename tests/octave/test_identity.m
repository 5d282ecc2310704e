% One native object has one script object, found again on every crossing.
d = deckforge.ppt.MessageDispatcher.getTheDispatcher ();
assert (d == deckforge.ppt.MessageDispatcher.getTheDispatcher ());
% The constructor hands out the same native dispatcher.
d2 = deckforge.ppt.MessageDispatcher ();
assert (d2 == d && isequal (d, d2) && ~(d ~= d2));

% Each read makes a new native handle; the script object stays the same.
f1 = d.Filter;
f2 = d.Filter;
f1.WarningMessagesPass = false;
assert (~f2.WarningMessagesPass);
f1.WarningMessagesPass = true;
assert (f1 == f2);

m = deckforge.ppt.WarningMessage ('careful', d);
assert (m.Source == d);
assert (m.Source == m.Source);

% Different objects and foreign values are not equal.
g = deckforge.ppt.MessageFilter ();
assert (g ~= f1);
assert (~isequal (g, f1));
assert (~isequal (g, 5));
assert (~(g == 'x'));
assert (isvalid (g));
delete (g);
assert (~isvalid (g));

% Native functions take the place of a class's script members once it is in
% use; the class still shows what its file says.
helpText = evalc ('help deckforge.ppt.Paragraph.append');
names = methods ('deckforge.ppt.Paragraph');
p = deckforge.ppt.Paragraph ('x');
assert (~isempty (strfind (helpText, 'append(')));
assert (strcmp (evalc ('help deckforge.ppt.Paragraph.append'), helpText));
assert (isequal (methods ('deckforge.ppt.Paragraph'), names));
% A script subclass builds on the native constructor and members.
s = ScriptText ('run');
assert (strcmp (s.Content, 'run') && isa (s, 'deckforge.ppt.Text'));
p.append (s);
assert (p.Children{2} == s);
