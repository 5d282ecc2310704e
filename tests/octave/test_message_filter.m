% Properties of filters and messages as script code sees them.
f = deckforge.ppt.MessageFilter ();
assert (f.ErrorMessagesPass && f.WarningMessagesPass && f.ProgressMessagesPass);
assert (islogical (f.DebugMessagesPass) && ~f.DebugMessagesPass);

% Optional values: [] while unset, '' is a set (blocking) text.
assert (isempty (f.GlobalFilter) && isnumeric (f.GlobalFilter));
f.GlobalFilter = 'pass';
assert (strcmp (f.GlobalFilter, 'pass'));
f.GlobalFilter = '';
assert (ischar (f.GlobalFilter) && isempty (f.GlobalFilter));
f.GlobalFilter = [];
assert (isnumeric (f.GlobalFilter) && isempty (f.GlobalFilter));

% The logical adapter: numbers count, NaN is true.
f.DebugMessagesPass = 1;   assert (f.DebugMessagesPass);
f.DebugMessagesPass = 0;   assert (~f.DebugMessagesPass);
f.DebugMessagesPass = NaN; assert (f.DebugMessagesPass);
f.DebugMessagesPass = [0 1]; assert (~f.DebugMessagesPass);
f.DebugMessagesPass = false; assert (~f.DebugMessagesPass);

d = deckforge.ppt.MessageDispatcher.getTheDispatcher ();
f.SourceFilter = d;
assert (f.SourceFilter == d);
f.SourceFilter = [];
assert (isempty (f.SourceFilter));

% Messages: text, formats and the filter test.
m = deckforge.ppt.ErrorMessage ('a <b> c', d);
assert (strcmp (m.Text, 'a <b> c'));
assert (strcmp (m.formatAsText (), [d.Tag ' a <b> c']));
assert (strcmp (m.formatAsHTML (), ['<p>' d.Tag ' a <b> c</p>']));
assert (m.passesFilter (f));
f.ErrorMessagesPass = false;
assert (~m.passesFilter (f));
f.GlobalFilter = 'pass';
assert (m.passesFilter (f));
dbg = deckforge.ppt.DebugMessage ('x', d);
assert (isa (dbg, 'deckforge.ppt.Message'));
assert (dbg.passesFilter (f));

% Non-ASCII text crosses intact.
t = deckforge.ppt.ProgressMessage ('Grüße – 東京', d);
assert (strcmp (t.Text, 'Grüße – 東京'));
d.Tag = 'Zähler';
assert (strcmp (d.Tag, 'Zähler'));
d.Tag = '';
