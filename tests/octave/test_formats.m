% Format objects from script code: values in and out, refused values with
% their identifiers, and a deck whose runs carry them.
b = deckforge.ppt.Bold (false);
assert (b.Value == false);
b.Value = true;
assert (b.Value == true);
c = deckforge.ppt.FontColor ('  Red ');
assert (strcmp (c.Value, 'red'));
assert (isa (c, 'deckforge.ppt.Color') && isa (c, 'deckforge.ppt.Format'));
try
  c.Value = '#12345';
  error ('no error');
catch err
  assert (strcmp (err.identifier, 'deckforge:ppt_error:invalidPropertyValue'), err.identifier);
end
assert (strcmp (c.Value, 'red'));
try
  deckforge.ppt.FontSize ('0pt');
  error ('no error');
catch err
  assert (strcmp (err.identifier, 'deckforge:ppt_error:invalidPropertyValue'), err.identifier);
end
u = deckforge.ppt.Underline ('DotDotDashHeavy');
assert (strcmp (u.Style, 'dotDotDashHeavy'));
f = deckforge.ppt.FontFamily ('Arial', 'Mangal');
assert (strcmp (f.Font, 'Arial') && strcmp (f.ComplexScriptFont, 'Mangal'));
h = deckforge.ppt.HAlign ('CENTER');
assert (strcmp (h.Value, 'center'));
v = deckforge.ppt.VAlign ('middleCentered');
assert (strcmp (v.Value, 'middleCentered'));
o = deckforge.ppt.TableStyleOptions ();
assert (o.FirstRow && o.BandedRows && ~o.LastRow);
o.LastRow = true;
assert (o.LastRow);
w = deckforge.ppt.ColWidth ('2in');
assert (strcmp (w.Value, '2in'));
