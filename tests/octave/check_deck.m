function check_deck (deck, template)
  % check_deck (deck [, template]): the deck passes the schema check and the
  % compatibility checker; with a template, only what the deck adds to the
  % template's own problems counts for the checker. A missing schema kit
  % skips the schema check.
  here = fileparts (mfilename ('fullpath'));
  validator = fullfile (here, '..', '..', '..', 'shared', 'ooxml-schemas', 'validate-pptx');
  if exist (validator, 'file')
    [status, output] = system (sprintf ('"%s" "%s" 2>&1', validator, deck));
    assert (status == 0 && ! isempty (strfind (output, ' 0 invalid')), 'validate-pptx:\n%s', output);
  end
  against = '';
  if nargin > 1 && ! isempty (template)
    against = sprintf ('--template "%s" ', template);
  end
  checker = fullfile (here, '..', 'tools', 'check-pptx');
  [status, output] = system (sprintf ('python3 "%s" %s"%s" 2>&1', checker, against, deck));
  assert (status == 0 && ! isempty (strfind (output, ' 0 problems')), 'check-pptx:\n%s', output);
end
