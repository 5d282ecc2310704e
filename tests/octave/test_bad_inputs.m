% Each bad argument is refused with its identifier, and Octave carries on.
d = deckforge.ppt.MessageDispatcher.getTheDispatcher ();
f = deckforge.ppt.MessageFilter ();
m = deckforge.ppt.ErrorMessage ('x', d);

expect_error (@() m.passesFilter ([]), 'deckforge:ppt_error:emptyPPTObjArrayError');
expect_error (@() m.passesFilter ({}), 'deckforge:ppt_error:emptyPPTObjArrayError');
expect_error (@() m.passesFilter ({f, f}), 'deckforge:ppt_error:nonscalarPPTObjArrayError');
assert (m.passesFilter ({f}));   % a cell of one object is one object
expect_error (@() m.passesFilter (d), 'deckforge:dom_error:fromQUORIXMarshallingError');
expect_error (@() m.passesFilter (containers.Map ()), 'deckforge:dom_error:fromQUORIXMarshallingError');
expect_error (@() m.passesFilter (7), 'deckforge:dom_error:fromQUORIXMarshallingError');
expect_error (@() d.dispatch (f), 'deckforge:dom_error:fromQUORIXMarshallingError');

gone = deckforge.ppt.MessageFilter ();
delete (gone);
expect_error (@() m.passesFilter (gone), 'QUORIX:class:InvalidHandle');
expect_error (@() gone.DebugMessagesPass, 'QUORIX:class:InvalidHandle');
expect_error (@() set_property (gone, 'DebugMessagesPass', true), 'QUORIX:class:InvalidHandle');

expect_error (@() set_property (f, 'GlobalFilter', ['abc'; 'def']), 'QUORIX:string:MustBeStringScalarOrCharacterVector');
expect_error (@() set_property (f, 'GlobalFilter', 5), 'QUORIX:string:MustBeStringScalarOrCharacterVector');
expect_error (@() set_property (f, 'GlobalFilter', {'pass'}), 'QUORIX:string:MustBeStringScalarOrCharacterVector');
expect_error (@() set_property (d, 'Tag', 5), 'QUORIX:string:MustBeStringScalarOrCharacterVector');
expect_error (@() set_property (f, 'DebugMessagesPass', 'a'), 'deckforge:ppt_error:invalidLogicalPropertyValue');
expect_error (@() set_property (f, 'DebugMessagesPass', []), 'deckforge:ppt_error:invalidLogicalPropertyValue');
expect_error (@() set_property (f, 'SourceFilter', f), 'deckforge:dom_error:fromQUORIXMarshallingError');

expect_error (@() deckforge.ppt.ErrorMessage (5, d), 'QUORIX:string:MustBeStringScalarOrCharacterVector');
expect_error (@() deckforge.ppt.ErrorMessage ('x'), 'QUORIX:class:NoMatchingSignature');
expect_error (@() deckforge.ppt.Node (), 'QUORIX:class:NoPublicConstructor');
expect_error (@() m.formatAsText (1), 'QUORIX:class:NoMatchingSignature');
try
  d.Filter = f;
  error ('test:noError', 'a read-only property was set');
catch err
  assert (~strcmp (err.identifier, 'test:noError'));
end
assert (strcmp (m.Text, 'x'));

